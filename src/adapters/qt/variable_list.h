// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/text_list.h"

namespace hx::qt {

/// A variable of the project, as the choice shows it.
struct Variable {
    std::string name, type, comment;
};

enum class VariableField : std::uint8_t { name, type, comment };

/// The variables of a project in an order, prepared for searching. Fit for a million: a few pieces of memory hold all.
class VariableList {
  public:
    VariableList() = default;
    VariableList(const std::vector<Variable>& variables);

    void reserve(std::size_t variables);
    /// Adds a variable that has no row yet.
    void add(std::string_view name, std::string_view type, std::string_view comment);
    /// Gives rows to variables, by their place in the order of adding; all have one then.
    void arrange(std::vector<std::uint32_t> order);
    /// Puts variables before all others.
    void prepend(const std::vector<Variable>& variables);

    [[nodiscard]] std::size_t size() const noexcept { return order_.size(); }
    [[nodiscard]] std::string_view text(std::size_t row, VariableField field) const {
        return texts_[order_[row] * fields + static_cast<std::size_t>(field)];
    }
    [[nodiscard]] std::string_view longest(VariableField field) const;
    /// Name, type and comment of a variable as one text without case, a line each.
    [[nodiscard]] std::string_view folded(std::size_t row) const { return folded_[row]; }
    [[nodiscard]] std::string_view foldedName(std::size_t row) const { return folded_[row].substr(0, nameSizes_[row]); }
    /// Ignoring case; the first of several.
    [[nodiscard]] std::optional<std::size_t> find(std::string_view name) const;

  private:
    static constexpr std::size_t fields = 3;
    automation::TextList texts_;            // name, type and comment of each, in the order of adding
    std::vector<std::uint32_t> order_;      // by row
    automation::TextList folded_;           // by row
    std::vector<std::uint32_t> nameSizes_;  // of the folded names, by row
};

}  // namespace hx::qt
