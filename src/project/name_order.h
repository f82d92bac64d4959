// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace hx::project {

/// A name in the order in which a reader looks it up: case and the marks of German letters do not count, a number
/// counts by its value ("Tank 2" comes before "Tank 10", "0,33 l" before "0,5 l"). Names that differ in nothing else
/// are ordered by their bytes.
class OrderedName {
  public:
    /// The name is lent.
    explicit OrderedName(std::string_view name);
    friend std::strong_ordering operator<=>(const OrderedName& a, const OrderedName& b);
    friend bool operator==(const OrderedName& a, const OrderedName& b) { return a.name_ == b.name_; }

  private:
    std::string_view name_;
    std::string form_;
};

}  // namespace hx::project
