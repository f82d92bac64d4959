// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "automation/dispatch.h"

/// Properties of a window by a path of member names: "Me.Font.Size", "tdbRM.Columns("VarRecipe").Width". The first name
/// "Me" is the window itself. An argument in parentheses is a quoted key, or a number, passed as a 16-bit integer.
///
/// Errors reach the caller up to the first member with an argument; from there on they end the operation silently,
/// since a file may name columns that the window does not have now.
namespace hx::settings {

/// Text is assigned as it is; every other value as a 16-bit integer, halves to the even one: 8.25 as 8, true as -1.
void SetValueByPath(automation::Dispatch& object, std::string_view path, const automation::Variant& value);

/// The property's value; empty after an error behind a member with an argument.
[[nodiscard]] automation::Variant GetValueByPath(automation::Dispatch& object, std::string_view path);

}  // namespace hx::settings
