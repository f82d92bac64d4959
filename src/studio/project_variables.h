#pragma once

#include <string>

#include "adapters/qt/variable_source.h"

namespace hx::studio {

/// The variable list of the open project, the table ThxVariable.
class ProjectVariables : public qt::VariableSource {
  public:
    /// Empty while no project is open.
    void setFile(const std::string& path) { file_ = path; }
    [[nodiscard]] std::vector<qt::Variable> variables() const override;

  private:
    std::string file_;
};

}  // namespace hx::studio
