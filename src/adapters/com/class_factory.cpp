// SPDX-License-Identifier: MIT
#include "adapters/com/class_factory.h"

#include "adapters/com/failure.h"

namespace hx::com {

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return guarded([&] { return make_()->QueryInterface(iid, object); });
}

HRESULT ClassFactory::CreateLent(const char* make, const host::Services& services, IUnknown** object,
                                 automation::ObjectRef& direct) {
    if (makeLent_ == nullptr || std::string_view(make) != makeOfLenders) return E_NOINTERFACE;
    return guarded([&] {
        Lent lent = makeLent_(services);
        direct = std::move(lent.direct);
        *object = lent.object.release();
        return S_OK;
    });
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    border_.lifetime().locks += lock ? 1 : -1;
    return S_OK;
}

}  // namespace hx::com
