#pragma once

#include <string>

#include "adapters/qt/variable_source.h"
#include "ado/provider.h"

namespace hx::studio {

/// The variable list of the open project, the table ThxVariable.
class ProjectVariables : public qt::VariableSource {
  public:
    explicit ProjectVariables(ado::Provider& provider) : provider_(provider) {}
    /// Empty while no project is open.
    void setFile(const std::string& path) { file_ = path; }
    [[nodiscard]] std::vector<qt::Variable> variables() const override;

  private:
    ado::Provider& provider_;
    std::string file_;
};

}  // namespace hx::studio
