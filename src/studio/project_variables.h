// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "adapters/qt/variable_source.h"
#include "adapters/sqlite/provider.h"

namespace hx::studio {

/// The variable list of the open project, the table ThxVariable.
class ProjectVariables : public qt::VariableSource {
  public:
    explicit ProjectVariables(sqlite::Provider::Options options = [] { return sqlite::OpenOptions(); })
        : options_(std::move(options)) {}
    /// Empty while no project is open.
    void setFile(const std::string& path) { file_ = path; }
    [[nodiscard]] qt::VariableList variables() const override;

  private:
    sqlite::Provider::Options options_;
    std::string file_;
};

}  // namespace hx::studio
