// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ado/field.h"
#include "automation/convert.h"
#include "forms/check_box.h"

/// How values pass between a row of the recipe table and the controls of a dialog.
namespace hx::recipe {

/// Null gives the empty text. A floating-point column is shown with a point as decimal separator in every locale; any
/// other value as `format` writes it.
[[nodiscard]] std::string FieldToText(const ado::Field& field, const automation::NumberFormat& format = {});

/// By the column's type: whole numbers and doubles receive the leading number of the text (0 without one; a double
/// takes "," for "."), unless it is what FieldToText gives; a text of variable length receives the text, any other type
/// nothing. A number that does not fit throws automation::Error.
void TextToField(ado::Field& field, std::string_view text);

/// Checked when the column is true or not 0; Null is unchecked.
[[nodiscard]] forms::CheckState FieldToCheck(const ado::Field& field);
/// Stores the state of the box as a 16-bit integer.
void CheckToField(ado::Field& field, forms::CheckState state);

/// The transfer options of a recipe.
struct TransferOptions {
    bool writeThrough = false;
    bool saveThrough = false;
    friend bool operator==(const TransferOptions&, const TransferOptions&) = default;
};

/// Null and bits that have no meaning set nothing.
[[nodiscard]] TransferOptions SplitOptions(const automation::Variant& options);
[[nodiscard]] std::int32_t JoinOptions(TransferOptions options);

}  // namespace hx::recipe
