// SPDX-License-Identifier: MIT
#include "recipe/data_environment.h"

#include <array>

#include "automation/text.h"
#include "project/schema.h"

namespace hx::recipe {

namespace schema = project::schema;

namespace {

std::shared_ptr<ado::Recordset> preset(std::string source, ado::CommandType type,
                                       const std::shared_ptr<ado::Connection>& connection) {
    auto recordset = std::make_shared<ado::Recordset>();
    recordset->setSource(std::move(source));
    recordset->setCommandType(type);
    recordset->setActiveConnection(connection);
    return recordset;
}

}  // namespace

DataEnvironment::DataEnvironment(ado::Provider& provider)
    : CnnRecipes(std::make_shared<ado::Connection>(provider)),
      rsRecipes(preset(std::string(schema::recipeTable), ado::adCmdTable, CnnRecipes)),
      rsRecipeMembers(preset(std::string(schema::memberTable), ado::adCmdTable, CnnRecipes)),
      rstabRecipeMembers(preset("SELECT * FROM " + std::string(schema::memberTable), ado::adCmdText, CnnRecipes)) {}

std::vector<std::shared_ptr<ado::Recordset>> DataEnvironment::recordsets() const {
    return {rsRecipes, rsRecipeMembers, rstabRecipeMembers};
}

std::shared_ptr<ado::Recordset> DataEnvironment::recordset(std::string_view dataMember) const {
    struct Named {
        std::string_view dataMember;
        const std::shared_ptr<ado::Recordset>& recordset;
    };
    const std::array<Named, 3> all = {
        {{"Recipes", rsRecipes}, {"RecipeMembers", rsRecipeMembers}, {"tabRecipeMembers", rstabRecipeMembers}}};
    for (const Named& named : all) {
        if (automation::equalIgnoreCase(named.dataMember, dataMember)) return named.recordset;
    }
    return nullptr;
}

}  // namespace hx::recipe
