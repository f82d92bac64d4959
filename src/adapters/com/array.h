// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "automation/dispatch.h"

namespace hx::com {

/// A list of values that has come over the border, or is to go over it as an array: Count, Item(number from 0).
class Array : public automation::Dispatch {
  public:
    explicit Array(std::vector<automation::Variant> items) : items_(std::move(items)) {}

    [[nodiscard]] const std::vector<automation::Variant>& items() const noexcept { return items_; }
    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(items_.size()); }
    /// errBadIndex when there is none.
    [[nodiscard]] const automation::Variant& item(std::int32_t number) const;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<automation::Variant> items_;
};

}  // namespace hx::com
