// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "ado/recordset.h"
#include "resources/resource_table.h"

/// What the user is told when another has changed or deleted the row that he edits.
namespace hx::recipe {

/// How the user knows the columns of a row.
struct ColumnNames {
    std::function<std::string(const ado::Field& field)> caption;
    std::function<std::string(const ado::Field& field, const automation::Variant& value)> value;
};

/// Whether an update was refused because another has changed or deleted the row.
[[nodiscard]] bool isConflict(const automation::Error& error) noexcept;

/// The error of an update in the language of the texts, with all that was entered into the row and not stored, and what
/// is stored there now. The edit must still be pending. Any other error is given back as it is.
[[nodiscard]] automation::Error conflictOf(const automation::Error& error, ado::Recordset& recordset,
                                           const resources::ResourceTable& texts, const ColumnNames& names);

/// A value as the user reads it, cut where it is long.
[[nodiscard]] std::string valueInWords(const automation::Variant& value, automation::Language language);

}  // namespace hx::recipe
