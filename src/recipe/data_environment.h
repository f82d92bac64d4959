// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "ado/connection.h"
#include "ado/recordset.h"

namespace hx::recipe {

/// One connection and the three recordsets of the editor, preset with their source and the connection, closed at first.
class DataEnvironment {
  public:
    explicit DataEnvironment(ado::Provider& provider);

    std::shared_ptr<ado::Connection> CnnRecipes;
    std::shared_ptr<ado::Recordset> rsRecipes;        ///< table TrcpRecipe
    std::shared_ptr<ado::Recordset> rsRecipeMembers;  ///< table TrcpRecipeMember
    std::shared_ptr<ado::Recordset>
        rstabRecipeMembers;  ///< SELECT * FROM TrcpRecipeMember; its text changes with the node

    [[nodiscard]] std::vector<std::shared_ptr<ado::Recordset>> recordsets() const;
    /// "rs" + dataMember; null when unknown.
    [[nodiscard]] std::shared_ptr<ado::Recordset> recordset(std::string_view dataMember) const;
};

}  // namespace hx::recipe
