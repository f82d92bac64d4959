// SPDX-License-Identifier: MIT
#include "adapters/com/components.h"

#include <objbase.h>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"

namespace hx::com {

automation::ObjectRef Components::create(std::string_view programId) {
    CLSID id{};
    require(CLSIDFromProgID(toWide(programId).c_str(), &id));
    Pointer<IDispatch> object;
    // Servers that are programs of their own are components too.
    require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, object.out()));
    return border_.take(object.get());
}

}  // namespace hx::com
