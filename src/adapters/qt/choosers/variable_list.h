#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/qt/variable_source.h"
#include "automation/key_index.h"

namespace hx::qt {

/// Variables in the order of their source, prepared for searching and for finding by name.
class VariableList {
  public:
    explicit VariableList(std::vector<Variable> variables);
    VariableList(const VariableList&) = delete;
    VariableList& operator=(const VariableList&) = delete;

    [[nodiscard]] std::size_t size() const noexcept { return variables_.size(); }
    [[nodiscard]] const Variable& operator[](std::size_t row) const { return variables_[row]; }
    /// Name, type and comment of a variable as one text without case, a line each.
    [[nodiscard]] std::string_view folded(std::size_t row) const;
    /// Ignoring case; the first of several.
    [[nodiscard]] std::optional<std::size_t> find(std::string_view name) const;

  private:
    /// The end of a variable's name and of all its fields in folded_.
    struct Ends {
        std::size_t name, all;
    };
    [[nodiscard]] std::string_view foldedName(std::size_t row) const;
    void fold();
    void fillIndex();

    std::vector<Variable> variables_;
    std::string folded_;  // of all variables, one after the other
    std::vector<Ends> ends_;
    automation::KeyIndex index_;  // of the rows, by folded name
};

}  // namespace hx::qt
