// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <unknwn.h>

#include "adapters/com/failure.h"

namespace hx::com {

/// Implements IUnknown for an object of this interface, which begins with one reference.
template <class Interface>
class Unknown : public Interface {
  public:
    Unknown() = default;
    virtual ~Unknown() = default;
    Unknown(const Unknown&) = delete;
    Unknown& operator=(const Unknown&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) return E_POINTER;
        const bool isOne = iid == IID_IUnknown || has(iid);
        *object = isOne ? this : nullptr;
        if (isOne) AddRef();
        return isOne ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            (void)guarded([this] {
                delete this;
                return S_OK;
            });
        }
        return left;
    }

  protected:
    /// Whether it has this interface, besides IUnknown.
    [[nodiscard]] virtual bool has(REFIID iid) const noexcept = 0;

  private:
    std::atomic<ULONG> references_ = 1;
};

}  // namespace hx::com
