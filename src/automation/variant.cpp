// SPDX-License-Identifier: MIT
#include "automation/variant.h"

#include <array>

#include "automation/error.h"

namespace hx::automation {

namespace {

template <class T, class V>
const T& view(const V& value, const char* expected) {
    if (const T* found = std::get_if<T>(&value)) return *found;
    throw Error(errTypeMismatch, std::string("Type mismatch: ") + expected + " expected");
}

}  // namespace

VarType Variant::type() const noexcept {
    static constexpr std::array<VarType, 8> types = {VarType::empty, VarType::null,  VarType::boolean, VarType::int16,
                                                     VarType::int32, VarType::real8, VarType::string,  VarType::object};
    return types[value_.index()];
}

bool Variant::isNumber() const noexcept {
    const VarType kind = type();
    return kind == VarType::int16 || kind == VarType::int32 || kind == VarType::real8;
}

bool Variant::asBoolean() const { return view<bool>(value_, "boolean"); }
std::int16_t Variant::asInt16() const { return view<std::int16_t>(value_, "16-bit integer"); }
std::int32_t Variant::asInt32() const { return view<std::int32_t>(value_, "32-bit integer"); }
double Variant::asDouble() const { return view<double>(value_, "double"); }
const std::string& Variant::asString() const { return view<std::string>(value_, "text"); }
const ObjectRef& Variant::asObject() const { return view<ObjectRef>(value_, "object"); }

}  // namespace hx::automation
