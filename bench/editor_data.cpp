// SPDX-License-Identifier: MIT
#include "bench/editor_data.h"

#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::bench {

EditorData::EditorData(const Project& project, std::shared_ptr<forms::Grid> grid) : grid_(std::move(grid)) {
    data_.CnnRecipes->open(
        "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + project.path + ";Mode=Read|Write|Share Deny None;", "", "",
        -1);
    select("RCPE0");
    for (const ado::Column& column : memberRecordset().columns()) grid_->addColumn(column.name);
    grid_->setDataSource(data_.rstabRecipeMembers);
}

void EditorData::select(const std::string& nodeKey) {
    recipe::RefreshMemberView(*grid_, memberRecordset(), nodeKey, true, texts_);
}

}  // namespace hx::bench
