// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "ado/provider.h"

namespace hx::ado {

/// The values that wait for Recordset::update, each with what its column held when it was read.
class RowEdit {
  public:
    [[nodiscard]] EditMode mode() const noexcept { return mode_; }
    [[nodiscard]] bool pending() const noexcept { return mode_ != adEditNone; }
    void begin(EditMode mode, std::size_t columns);
    /// The edit of a row that was read as a whole.
    void begin(std::vector<automation::Variant> row);
    void end() noexcept;
    /// Of a column that is assigned again the first `read` counts. On a new row nothing was read.
    void set(std::size_t column, automation::Variant value, automation::Variant read = {});
    /// What the column held when it was read; null when it has neither been assigned nor read as part of the row.
    [[nodiscard]] const automation::Variant* read(std::size_t column) const noexcept;
    /// Null when the column has not been assigned.
    [[nodiscard]] const automation::Variant* value(std::size_t column) const noexcept;
    /// The assigned columns only.
    [[nodiscard]] std::vector<ColumnValue> assigned() const;

    struct Changes {
        std::vector<ColumnValue> values, read;
    };
    /// The assigned columns whose value is another one than was read.
    [[nodiscard]] Changes changes() const;

  private:
    struct Value {
        automation::Variant value, read;
    };
    EditMode mode_ = adEditNone;
    std::vector<std::optional<Value>> values_;
    std::vector<automation::Variant> row_;  // empty when only columns were read
};

/// The value in the kind that the column stores. Throws dbErrCannotConvert when it does not fit, adErrIllegalOperation
/// for a column that cannot be assigned.
[[nodiscard]] automation::Variant convertFor(const Column& column, const automation::Variant& value);

/// How many characters a text in the column has at most; 0: any number.
[[nodiscard]] std::size_t longestText(const Column& column) noexcept;

}  // namespace hx::ado
