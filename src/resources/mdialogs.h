// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/dispatch.h"
#include "forms/form.h"
#include "resources/resource_table.h"

/// Routines for dialogs. They reach everything by name, so that they serve any window and control.
namespace hx::resources {

/// LocaliseControl for the window and each of its controls, in their order.
void LocaliseDialog(forms::Form& window, const ResourceTable& texts);

/// Reads the object's Tag, a list with commas: each token "C" + number assigns that text to Caption, the last one wins.
/// Other tokens do nothing ("A..." is reserved). Errors are ignored: an object without Tag or Caption stays as it is.
void LocaliseControl(automation::Dispatch& object, const ResourceTable& texts);

/// Name, Size (four decimals), Charset, Italic, Strikethrough, Underline, Weight, in this order; Weight carries Bold.
void CopyFont(automation::Dispatch& source, automation::Dispatch& target);

/// Fills a list or combo box with texts, each with its number as item data, and selects the first entry whose item data
/// equals `value`; nothing when there is none, or when `value` is null. Without texts the entries stay as they are.
/// Fewer numbers than texts throws errBadIndex; the entries before are in the list then.
void FillListWithData(automation::Dispatch& list, const automation::Variant& value,
                      const std::optional<std::vector<std::string>>& texts, const std::vector<std::int32_t>& numbers);

/// Sets TabStop of every control: false when it, or one of its containers below `stopName` and the window, lies out of
/// sight to the left or above. Errors are ignored.
void FixTabStops(forms::Form& window, std::string_view stopName);

}  // namespace hx::resources
