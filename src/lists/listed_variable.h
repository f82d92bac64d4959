// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>

#include "automation/sentence.h"

namespace hx::lists {

/// A variable as a list names it. What the list does not say stays as it is in the project.
struct ListedVariable {
    std::string name;
    std::optional<std::string> type;
    std::optional<std::string> comment;
    int line = 0;
};

/// The most characters that the project keeps of each.
struct VariableLimits {
    std::size_t name, type, comment;
};

/// Takes what is read from a list.
class VariableReceiver {
  public:
    virtual ~VariableReceiver() = default;
    /// Throws automation::Error when the variable is wrong.
    virtual void take(const ListedVariable& variable) = 0;
    /// Something that the user must know but that stops nothing.
    virtual void note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) = 0;
    /// So much of the list has been read.
    virtual void reach(std::int64_t done, std::int64_t total) = 0;
};

}  // namespace hx::lists
