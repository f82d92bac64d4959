// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "ado/provider.h"
#include "automation/dispatch.h"

namespace hx::ado {

class Recordset;

/// One column of a recordset, and its value in the current row. Lives as long as the recordset stays open.
class Field : public automation::Dispatch {
  public:
    Field(Recordset& recordset, std::size_t column) : recordset_(recordset), column_(column) {}

    [[nodiscard]] const std::string& name() const;
    [[nodiscard]] DataType type() const;
    [[nodiscard]] std::int32_t definedSize() const;
    /// The pending value while the row is edited, else the stored one. Integer columns give a 32-bit integer,
    /// adDouble a double, adBoolean a boolean, text a string, a missing value Null. Throws adErrNoCurrentRecord.
    [[nodiscard]] automation::Variant value() const;
    /// Starts or continues the edit of the current row. The value is converted to the column's type
    /// (dbErrCannotConvert when it cannot be); a key column throws adErrIllegalOperation.
    void setValue(const automation::Variant& value);
    /// What update() compares with: the value before the edit of the row began, else the stored one.
    [[nodiscard]] automation::Variant originalValue() const;
    /// What is stored now, read afresh.
    [[nodiscard]] automation::Variant underlyingValue() const;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    Recordset& recordset_;
    std::size_t column_;
};

}  // namespace hx::ado
