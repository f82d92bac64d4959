// SPDX-License-Identifier: MIT
#include "adapters/com/object.h"

#include <algorithm>
#include <oleauto.h>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"
#include "automation/text.h"

namespace hx::com {

namespace {

using automation::MemberTable;
using automation::Variant;

// Members of a class lie in a range of their own, behind those of its base classes; names that the object itself adds
// behind all of them.
constexpr DISPID range = 1 << 16;
constexpr DISPID ownNames = 1 << 30;

DISPID depthOf(const MemberTable& table) { return table.base == nullptr ? 0 : depthOf(*table.base) + 1; }

const MemberTable* tableAt(const MemberTable& table, DISPID depth) {
    const MemberTable* at = &table;
    while (at != nullptr && depthOf(*at) != depth) at = at->base;
    return at;
}

/// What a caller gives, in our order.
struct Call {
    std::vector<Variant> args;
    Variant assigned;
};

Call takeCall(Border& border, WORD how, const DISPPARAMS& given) {
    const bool assigns = (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (assigns && given.cArgs == 0) throw automation::Error(automation::errBadParamCount, "Nothing to assign");
    Call call;
    // The named ones come first, then the others from the last to the first.
    for (UINT i = given.cArgs; i > given.cNamedArgs; --i) call.args.push_back(border.take(given.rgvarg[i - 1]));
    for (UINT i = 0; i < given.cNamedArgs; ++i) {
        const DISPID name = given.rgdispidNamedArgs[i];
        Variant value = border.take(given.rgvarg[i]);
        if (name == DISPID_PROPERTYPUT) {
            call.assigned = std::move(value);
            continue;
        }
        if (name < 0 || name >= static_cast<DISPID>(given.cArgs)) {
            throw automation::Error(automation::errBadParamCount, "An argument is named that the member does not have");
        }
        if (call.args.size() <= static_cast<std::size_t>(name)) call.args.resize(static_cast<std::size_t>(name) + 1);
        call.args[static_cast<std::size_t>(name)] = std::move(value);
    }
    // A caller that does not name the value to be assigned gives it as the last one.
    if (assigns && given.cNamedArgs == 0) {
        call.assigned = std::move(call.args.back());
        call.args.pop_back();
    }
    return call;
}

}  // namespace

Object::Object(automation::ObjectRef object, Border& border)
    : object_(std::move(object)), border_(border), counted_(border.lifetime().objects) {
    border_.enter(this, object_);
}

Object::~Object() { border_.leave(this); }

HRESULT Object::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT Object::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT Object::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    return guarded([&]() -> HRESULT {
        std::fill(ids, ids + count, DISPID_UNKNOWN);
        ids[0] = idOf(toUtf8(names[0]));
        return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;  // arguments have no names
    });
}

DISPID Object::idOf(std::string_view name) {
    for (const MemberTable* table = &object_->members(); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->rows.size(); ++i) {
            if (!automation::equalIgnoreCase(table->rows[i].name, name)) continue;
            return depthOf(*table) * range + static_cast<DISPID>(i) + 1;
        }
    }
    return ownIdOf(name);
}

// A name of the object's own is that of a part, which is there to be read.
DISPID Object::ownIdOf(std::string_view name) {
    const auto known =
        std::ranges::find_if(ownNames_, [&](const std::string& own) { return automation::equalIgnoreCase(own, name); });
    const auto id = static_cast<DISPID>(ownNames + (known - ownNames_.begin()));
    if (known != ownNames_.end()) return id;
    try {
        (void)object_->get(name);
    } catch (const automation::Error& error) {
        if (error.number() == automation::errUnknownName) return DISPID_UNKNOWN;
    }
    ownNames_.emplace_back(name);
    return id;
}

std::string_view Object::nameOf(DISPID id) const {
    if (id >= ownNames) {
        const auto number = static_cast<std::size_t>(id - ownNames);
        return number < ownNames_.size() ? ownNames_[number] : std::string_view();
    }
    if (id < 1) return {};
    const MemberTable* const table = tableAt(object_->members(), (id - 1) / range);
    const auto row = static_cast<std::size_t>((id - 1) % range);
    return table != nullptr && row < table->rows.size() ? table->rows[row].name : std::string_view();
}

HRESULT Object::Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters, VARIANT* result,
                       EXCEPINFO* exception, UINT*) {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (parameters == nullptr) return E_INVALIDARG;
    const Pointer<Object> alive(this);  // a method may let go of the last reference
    try {
        const std::string_view name = nameOf(id);
        if (name.empty()) return DISP_E_MEMBERNOTFOUND;
        run(name, how, *parameters, result);
        return S_OK;
    } catch (...) {
        return tellCaughtError(exception, locale);
    }
}

void Object::run(std::string_view name, WORD how, const DISPPARAMS& parameters, VARIANT* result) {
    if (result != nullptr) *result = {};
    const Call call = takeCall(border_, how, parameters);
    if ((how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        object_->set(name, call.assigned, call.args);
        return;
    }
    const Variant value = object_->get(name, call.args);
    if (result != nullptr) border_.give(value, *result);
}

}  // namespace hx::com
