#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "adapters/qt/variable_source.h"

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
    std::vector<Variable> variables_;
    std::string folded_;                                      // of all variables, one after the other
    std::vector<std::size_t> ends_;                           // in it
    std::unordered_map<std::string_view, std::size_t> rows_;  // by the folded name
};

}  // namespace hx::qt
