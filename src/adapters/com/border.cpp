// SPDX-License-Identifier: MIT
#include "adapters/com/border.h"

#include <limits>
#include <oleauto.h>

#include "adapters/com/cleared.h"
#include "adapters/com/failure.h"
#include "adapters/com/foreign_object.h"
#include "adapters/com/object.h"
#include "adapters/com/safe_array.h"
#include "adapters/com/text.h"

namespace hx::com {

namespace {

using automation::Variant;
using automation::VarType;

template <class Number>
Variant narrowest(Number number) {
    if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

Variant doubleOf(const VARIANT& value) {
    Cleared converted;
    require(VariantChangeTypeEx(&converted, const_cast<VARIANT*>(&value), LOCALE_INVARIANT, 0, VT_R8));
    return converted.dblVal;
}

// A member that is left out in a call comes as an error of its own.
Variant errorValue(SCODE code) {
    if (code == DISP_E_PARAMNOTFOUND) return {};
    fail(code);
}

[[noreturn]] void refuse() {
    throw automation::Error(automation::errTypeMismatch, "Type mismatch: a kind of value that cannot be used here");
}

void giveObject(Border& border, const automation::ObjectRef& object, VARIANT& to) {
    if (const auto* array = dynamic_cast<const Array*>(object.get())) {
        to.parray = giveArray(border, *array);
        to.vt = VT_ARRAY | VT_VARIANT;
        return;
    }
    to.pdispVal = border.give(object).release();
    to.vt = VT_DISPATCH;
}

}  // namespace

Pointer<IDispatch> Border::give(const automation::ObjectRef& object) {
    if (!object) return {};
    if (const auto* foreign = dynamic_cast<const ForeignObject*>(object.get())) return foreign->reference();
    if (const auto equal = equals_.find(object.get()); equal != equals_.end()) return equal->second;
    if (const auto known = given_.find(object.get()); known != given_.end()) return Pointer<IDispatch>(known->second);
    return Pointer<IDispatch>::adopt(new Object(object, *this));
}

void Border::enter(IDispatch* object, const automation::ObjectRef& ours) {
    ours_.emplace(object, ours);
    given_.insert_or_assign(ours.get(), object);
}

void Border::leave(IDispatch* object) noexcept {
    const auto own = ours_.find(object);
    if (own == ours_.end()) return;
    const auto given = given_.find(own->second.get());
    if (given != given_.end() && given->second == object) given_.erase(given);
    ours_.erase(own);
}

void Border::give(const Variant& value, VARIANT& to) {
    to = {};
    switch (value.type()) {
        case VarType::empty: return;
        case VarType::null: to.vt = VT_NULL; return;
        case VarType::boolean:
            to.vt = VT_BOOL;
            to.boolVal = value.asBoolean() ? VARIANT_TRUE : VARIANT_FALSE;
            return;
        case VarType::int16:
            to.vt = VT_I2;
            to.iVal = value.asInt16();
            return;
        case VarType::int32:
            to.vt = VT_I4;
            to.lVal = value.asInt32();
            return;
        case VarType::real8:
            to.vt = VT_R8;
            to.dblVal = value.asDouble();
            return;
        case VarType::string:
            to.bstrVal = makeBstr(value.asString());
            to.vt = VT_BSTR;
            return;
        case VarType::object: giveObject(*this, value.asObject(), to); return;
    }
}

void Border::equate(const automation::ObjectRef& ours, const Pointer<IDispatch>& theirs) {
    equals_.insert_or_assign(ours.get(), theirs);
}

void Border::forget(const automation::ObjectRef& ours) noexcept { equals_.erase(ours.get()); }

automation::ObjectRef Border::take(IDispatch* object) {
    if (object == nullptr) return {};
    if (const auto own = ours_.find(object); own != ours_.end()) return own->second;
    return std::make_shared<ForeignObject>(object, *this);
}

Variant Border::take(const VARIANT& value) {
    if ((value.vt & VT_ARRAY) != 0) return automation::ObjectRef(takeArray(*this, value));
    if ((value.vt & VT_BYREF) != 0) {
        if (value.byref == nullptr) refuse();
        if (value.vt == (VT_BYREF | VT_VARIANT)) return take(*value.pvarVal);
        Cleared behind;
        require(VariantCopyInd(&behind, const_cast<VARIANT*>(&value)));
        return take(static_cast<const VARIANT&>(behind));
    }
    switch (value.vt) {
        case VT_EMPTY: return {};
        case VT_NULL: return automation::Null{};
        case VT_BOOL: return value.boolVal != VARIANT_FALSE;
        case VT_I1: return static_cast<std::int16_t>(value.cVal);
        case VT_UI1: return static_cast<std::int16_t>(value.bVal);
        case VT_I2: return static_cast<std::int16_t>(value.iVal);
        case VT_UI2: return static_cast<std::int32_t>(value.uiVal);
        case VT_I4:
        case VT_INT: return static_cast<std::int32_t>(value.lVal);
        case VT_UI4:
        case VT_UINT: return narrowest(value.ulVal);
        case VT_I8: return narrowest(value.llVal);
        case VT_UI8: return narrowest(value.ullVal);
        case VT_R4: return static_cast<double>(value.fltVal);
        case VT_R8: return value.dblVal;
        case VT_CY:
        case VT_DECIMAL: return doubleOf(value);
        case VT_DATE: return value.date;
        case VT_BSTR: return textOf(value.bstrVal);
        case VT_DISPATCH: return take(value.pdispVal);
        case VT_UNKNOWN: {
            const auto object = Pointer<IDispatch>::of(value.punkVal, IID_IDispatch);
            if (value.punkVal != nullptr && !object) refuse();
            return take(object.get());
        }
        case VT_ERROR: return errorValue(value.scode);
        default: refuse();
    }
}

}  // namespace hx::com
