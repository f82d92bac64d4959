#pragma once

#include <string>
#include <vector>

namespace hx::qt {

/// A variable of the project, as the choice shows it.
struct Variable {
    std::string name, type, comment;
};

/// Where the choice of a variable takes its list.
class VariableSource {
  public:
    virtual ~VariableSource() = default;
    /// In the order of the list; throws automation::Error when it cannot be read.
    [[nodiscard]] virtual std::vector<Variable> variables() const = 0;
};

}  // namespace hx::qt
