// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/convert.h"
#include "automation/dispatch.h"

/// Builds the rows of a member table from member functions:
///
///   const MemberTable& Panel::members() const {
///       static constexpr Member rows[] = {
///           property<&Panel::text, &Panel::setText>("Text", "What the panel shows"),
///           method<&Panel::clear>("Clear", "Empties the panel"),
///       };
///       static constexpr MemberTable table{"Panel", rows};
///       return table;
///   }
namespace hx::automation {

namespace detail {

template <class F>
struct Signature;

template <class C, class R, class... A>
struct Signature<R (C::*)(A...)> {
    using Class = C;
    using Result = std::remove_cvref_t<R>;
    template <std::size_t I>
    using Arg = std::remove_cvref_t<std::tuple_element_t<I, std::tuple<A...>>>;
    static constexpr std::size_t arity = sizeof...(A);
};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) noexcept> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const noexcept> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (*)(C&, A...)> : Signature<R (C::*)(A...)> {};

template <class T>
constexpr VarType varTypeOf() {
    if constexpr (std::is_same_v<T, bool>) return VarType::boolean;
    else if constexpr (std::is_enum_v<T> || std::is_same_v<T, std::int32_t>) return VarType::int32;
    else if constexpr (std::is_same_v<T, std::int16_t>) return VarType::int16;
    else if constexpr (std::is_floating_point_v<T>) return VarType::real8;
    else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, std::string_view>) return VarType::string;
    else if constexpr (std::is_same_v<T, ObjectRef>) return VarType::object;
    else return VarType::empty;
}

template <class T>
Variant wrap(T&& value) {
    using V = std::remove_cvref_t<T>;
    if constexpr (std::is_same_v<V, Variant>) return std::forward<T>(value);
    else if constexpr (std::is_enum_v<V>) return Variant(static_cast<std::int32_t>(value));
    else if constexpr (std::is_floating_point_v<V>) return Variant(static_cast<double>(value));
    else if constexpr (std::is_convertible_v<V, ObjectRef>) return Variant(ObjectRef(std::forward<T>(value)));
    else return Variant(std::forward<T>(value));
}

template <class T>
decltype(auto) unwrap(const Variant& value) {
    if constexpr (std::is_same_v<T, Variant>) return (value);
    else if constexpr (std::is_same_v<T, bool>) return toBoolean(value);
    else if constexpr (std::is_same_v<T, std::int16_t>) return toInt16(value);
    else if constexpr (std::is_same_v<T, std::int32_t>) return toInt32(value);
    else if constexpr (std::is_enum_v<T> && sizeof(T) == sizeof(std::int16_t)) return static_cast<T>(toInt16(value));
    else if constexpr (std::is_enum_v<T>) return static_cast<T>(toInt32(value));
    else if constexpr (std::is_floating_point_v<T>) return static_cast<T>(toDouble(value));
    else if constexpr (std::is_same_v<T, ObjectRef>) return value.asObject();
    else {
        if (value.isObject()) throw Error(errTypeMismatch, "Type mismatch: text expected");
        return toText(value);
    }
}

inline void requireCount(Args args, std::size_t count) {
    if (args.size() != count) throw Error(errBadParamCount, "Invalid number of arguments");
}

template <auto F>
Variant invoke(Dispatch& self, Args args) {
    using S = Signature<decltype(F)>;
    auto& object = dynamic_cast<typename S::Class&>(self);
    requireCount(args, S::arity);
    auto run = [&]<std::size_t... I>(std::index_sequence<I...>)->decltype(auto) {
        return std::invoke(F, object, unwrap<typename S::template Arg<I>>(args[I])...);
    };
    if constexpr (std::is_void_v<typename S::Result>) {
        run(std::make_index_sequence<S::arity>{});
        return {};
    } else {
        return wrap(run(std::make_index_sequence<S::arity>{}));
    }
}

template <auto F>
void assign(Dispatch& self, Args index, const Variant& value) {
    using S = Signature<decltype(F)>;
    auto& object = dynamic_cast<typename S::Class&>(self);
    requireCount(index, S::arity - 1);
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        std::invoke(F, object, unwrap<typename S::template Arg<I>>(index[I])...,
                    unwrap<typename S::template Arg<S::arity - 1>>(value));
    }
    (std::make_index_sequence<S::arity - 1>{});
}

template <auto F>
constexpr VarType resultType() {
    return varTypeOf<typename Signature<decltype(F)>::Result>();
}

}  // namespace detail

/// A read-only property. Get and Set are member functions, or functions that take the object by reference first.
template <auto Get>
constexpr Member property(std::string_view name, std::string_view doc) {
    return {name, MemberKind::property, detail::resultType<Get>(), doc, &detail::invoke<Get>, nullptr};
}

template <auto Get, auto Set>
constexpr Member property(std::string_view name, std::string_view doc) {
    return {name, MemberKind::property, detail::resultType<Get>(), doc, &detail::invoke<Get>, &detail::assign<Set>};
}

/// A property that takes its index or key as arguments.
template <auto Get>
constexpr Member indexed(std::string_view name, std::string_view doc) {
    return {name, MemberKind::indexed, detail::resultType<Get>(), doc, &detail::invoke<Get>, nullptr};
}

template <auto Get, auto Set>
constexpr Member indexed(std::string_view name, std::string_view doc) {
    return {name, MemberKind::indexed, detail::resultType<Get>(), doc, &detail::invoke<Get>, &detail::assign<Set>};
}

template <auto Call>
constexpr Member method(std::string_view name, std::string_view doc) {
    return {name, MemberKind::method, detail::resultType<Call>(), doc, &detail::invoke<Call>, nullptr};
}

/// A method that takes its arguments as they come, for optional ones.
template <class T, Variant (*Call)(T&, Args)>
constexpr Member methodWithArgs(std::string_view name, std::string_view doc) {
    return {name,
            MemberKind::method,
            VarType::empty,
            doc,
            [](Dispatch& self, Args args) { return Call(dynamic_cast<T&>(self), args); },
            nullptr};
}

}  // namespace hx::automation
