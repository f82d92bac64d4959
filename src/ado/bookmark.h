// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "ado/row_keys.h"
#include "automation/variant.h"

namespace hx::ado {

/// Marks a row of a recordset and of its clones. Stays valid when other rows come and go and after a requery,
/// as long as the row exists. A null bookmark marks no row.
class Bookmark {
  public:
    Bookmark() = default;
    explicit Bookmark(Key key) : key_(key) {}
    [[nodiscard]] bool isNull() const noexcept { return !key_.has_value(); }
    [[nodiscard]] Key key() const { return key_.value(); }
    friend bool operator==(const Bookmark&, const Bookmark&) = default;

    /// As a value for late-bound use: a double that holds the key exactly, or Null.
    [[nodiscard]] automation::Variant toVariant() const;
    [[nodiscard]] static Bookmark fromVariant(const automation::Variant& value);

  private:
    std::optional<Key> key_;
};

}  // namespace hx::ado
