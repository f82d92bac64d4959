// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "recipe/data_environment.h"
#include "support/faulty_provider.h"
#include "support/memory_provider.h"

namespace hx::recipe {

/// An open connection to a project in memory, whose operations can be made to fail.
struct Plant {
    Plant() { data.CnnRecipes->open("Data Source=plant.hxs"); }

    /// The ID of the new recipe.
    std::int32_t addRecipe(const std::string& name) { return insert("TrcpRecipe", {{1, automation::Variant(name)}}); }
    /// ParentID, VarRecipe and ChildID in the order of the table's columns.
    std::int32_t addMember(std::int32_t parent, const std::string& variable, std::int32_t child = 0) {
        return insert(
            "TrcpRecipeMember",
            {{1, automation::Variant(parent)}, {2, automation::Variant(variable)}, {3, automation::Variant(child)}});
    }

    support::MemoryProvider memory;
    support::MemoryDatabase& database = memory.add("plant.hxs");
    support::FaultPlan faults;
    support::FaultyProvider provider{memory, faults};
    DataEnvironment data{provider};

  private:
    std::int32_t insert(std::string_view table, const std::vector<ado::ColumnValue>& values) {
        return static_cast<std::int32_t>(database.table(table).insert(values));
    }
};

}  // namespace hx::recipe
