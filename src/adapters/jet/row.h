// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

#include "adapters/jet/table_definition.h"

namespace hx::jet {

/// The bytes that a row holds of its columns; missing for no value. A yes/no column has no bytes and is never missing:
/// empty is no, `yesBytes` is yes.
using StoredColumn = std::optional<Bytes>;

inline constexpr Byte yesByte = 1;
[[nodiscard]] inline StoredColumn storedYesNo(bool yes) noexcept { return yes ? Bytes(&yesByte, 1) : Bytes(); }

/// A row as it stands in the file.
class Row {
  public:
    Row() = default;
    /// Throws Damaged when the bytes cannot be a row of the table. `page` is told then.
    Row(Bytes bytes, const TableDefinition& table, std::uint32_t page);

    [[nodiscard]] StoredColumn column(const Column& column) const;
    [[nodiscard]] Bytes bytes() const noexcept { return bytes_; }

  private:
    [[nodiscard]] bool isSet(std::uint32_t number) const noexcept {
        return number < columns_ && (bytes_[maskAt_ + number / 8] >> number % 8 & 1) != 0;
    }
    [[nodiscard]] std::uint32_t variable(std::uint32_t number) const noexcept {
        return get16(bytes_.data() + maskAt_ - 4 - std::size_t{number} * 2);
    }

    Bytes bytes_;
    std::uint32_t page_ = 0;
    std::uint32_t columns_ = 0;    // that it was written with
    std::uint32_t variables_ = 0;  // of these without fixed length
    std::size_t maskAt_ = 0;
};

/// Puts a row together; `columns` has one entry a column of the table.
void buildRow(Buffer& row, const TableDefinition& table, std::span<const StoredColumn> columns);

}  // namespace hx::jet
