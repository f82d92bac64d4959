// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "automation/variant.h"

namespace hx::lua {

struct Value;
struct FunctionReference;

using List = std::vector<Value>;                            ///< a table's items, which a macro counts from 1
using Fields = std::vector<std::pair<std::string, Value>>;  ///< a table's items by name
using Values = std::span<const Value>;

/// A function of a macro. It may outlive the engine and then throws errFail.
class Function {
  public:
    explicit Function(std::shared_ptr<const FunctionReference> reference) : reference_(std::move(reference)) {}
    /// Runs it; what it returns first, or an empty value. When it fails this throws errFail, further calls do too, and
    /// the macro fails with that error once the function of the engine's that it is running returns.
    Value operator()(Values arguments) const;

  private:
    std::shared_ptr<const FunctionReference> reference_;
};

/// What passes between a macro and C++.
struct Value {
    Value() = default;
    template <class T>
    requires(!std::is_same_v<std::remove_cvref_t<T>, Value> && std::is_constructible_v<automation::Variant, T>)
        Value(T&& variant)
        : content(automation::Variant(std::forward<T>(variant))) {}
    Value(List items) : content(std::move(items)) {}
    Value(Fields fields) : content(std::move(fields)) {}
    Value(Function function) : content(std::move(function)) {}

    [[nodiscard]] bool isNil() const;  ///< an empty Variant
    /// The plain value; a list as an object with Count and Item (from 0). Throws errTypeMismatch for named fields and
    /// functions.
    [[nodiscard]] automation::Variant toVariant() const;
    /// Each throws errTypeMismatch when the value is something else. An empty table is both a list and fields.
    [[nodiscard]] const List& list() const;
    [[nodiscard]] const Fields& fields() const;
    [[nodiscard]] const Function& function() const;

    std::variant<automation::Variant, List, Fields, Function> content;
};

}  // namespace hx::lua
