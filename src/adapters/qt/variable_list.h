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
    /// Name, type and comment of a variable as one text without case, a line each. All are made when the first is asked
    /// for: a list is shown more often than it is searched.
    [[nodiscard]] std::string_view folded(std::size_t row) const {
        if (folded_.size() != size()) fold();
        return folded_[row];
    }
    [[nodiscard]] std::string_view foldedName(std::size_t row) const { return foldedNames_[row]; }
    /// Ignoring case; the first of several.
    [[nodiscard]] std::optional<std::size_t> find(std::string_view name) const;

  private:
    static constexpr std::size_t fields = 3;
    void fold() const;
    automation::TextList texts_;           // name, type and comment of each, in the order of adding
    std::vector<std::uint32_t> order_;     // by row
    automation::TextList foldedNames_;     // by row
    mutable automation::TextList folded_;  // by row, or none yet
};

}  // namespace hx::qt
