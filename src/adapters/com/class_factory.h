// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "adapters/com/border.h"
#include "adapters/com/lending.h"
#include "adapters/com/unknown.h"

namespace hx::com {

/// Makes the objects of one class. It keeps the server in memory only while it is locked, as COM wants it.
class ClassFactory : public Unknown<ILendingFactory> {
  public:
    struct Lent {
        Pointer<IUnknown> object;
        automation::ObjectRef direct;
    };
    using Make = std::function<Pointer<IUnknown>()>;
    /// With the services that the host lends.
    using MakeLent = std::function<Lent(const host::Services& services)>;

    ClassFactory(Make make, MakeLent makeLent, Border& border)
        : make_(std::move(make)), makeLent_(std::move(makeLent)), border_(border) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;
    HRESULT STDMETHODCALLTYPE CreateLent(const char* make, const host::Services& services, IUnknown** object,
                                         automation::ObjectRef& direct) override;

  private:
    [[nodiscard]] bool has(REFIID iid) const noexcept override {
        return iid == IID_IClassFactory || iid == __uuidof(ILendingFactory);
    }

    Make make_;
    MakeLent makeLent_;
    Border& border_;
};

}  // namespace hx::com
