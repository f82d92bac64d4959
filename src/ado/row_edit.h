#pragma once

#include <optional>
#include <vector>

#include "ado/provider.h"

namespace hx::ado {

/// The values that wait for Recordset::update.
class RowEdit {
  public:
    [[nodiscard]] EditMode mode() const noexcept { return mode_; }
    [[nodiscard]] bool pending() const noexcept { return mode_ != adEditNone; }
    void begin(EditMode mode, std::size_t columns);
    void end() noexcept;
    void set(std::size_t column, automation::Variant value) { values_[column] = std::move(value); }
    /// Null when the column has not been assigned.
    [[nodiscard]] const automation::Variant* value(std::size_t column) const noexcept;
    /// The assigned columns only.
    [[nodiscard]] std::vector<ColumnValue> assigned() const;

  private:
    EditMode mode_ = adEditNone;
    std::vector<std::optional<automation::Variant>> values_;
};

/// The value in the kind that the column stores. Throws dbErrCannotConvert when it does not fit, adErrIllegalOperation
/// for a column that cannot be assigned.
[[nodiscard]] automation::Variant convertFor(const Column& column, const automation::Variant& value);

}  // namespace hx::ado
