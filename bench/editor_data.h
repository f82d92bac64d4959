// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/provider.h"
#include "bench/projects.h"
#include "recipe/data_environment.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "resources/resource_table.h"

namespace hx::bench {

/// The data side of an open editor: its data environment on a project, the member grid and the selected node.
class EditorData {
  public:
    explicit EditorData(const Project& project,
                        std::shared_ptr<forms::Grid> grid = std::make_shared<forms::Grid>("tdbRM"));

    void select(std::int32_t recipe) { select("RCPR" + std::to_string(recipe)); }
    void select(const std::string& nodeKey);

    [[nodiscard]] recipe::DataEnvironment& data() noexcept { return data_; }
    [[nodiscard]] const resources::ResourceTable& texts() const noexcept { return texts_; }
    [[nodiscard]] const std::shared_ptr<forms::Grid>& grid() const noexcept { return grid_; }

    [[nodiscard]] ado::Recordset& memberRecordset() { return *data_.rstabRecipeMembers; }

  private:
    sqlite::Provider provider_;
    recipe::DataEnvironment data_{provider_};
    resources::ResourceTable texts_;
    std::shared_ptr<forms::Grid> grid_;
};

}  // namespace hx::bench
