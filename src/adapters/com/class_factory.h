// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <unknwn.h>

#include "adapters/com/border.h"
#include "adapters/com/unknown.h"

namespace hx::com {

/// Makes the objects of one class. It keeps the server in memory only while it is locked, as COM wants it.
class ClassFactory : public Unknown<IClassFactory> {
  public:
    using Make = std::function<Pointer<IUnknown>()>;

    ClassFactory(Make make, Border& border) : make_(std::move(make)), border_(border) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

  private:
    [[nodiscard]] bool has(REFIID iid) const noexcept override { return iid == IID_IClassFactory; }

    Make make_;
    Border& border_;
};

}  // namespace hx::com
