// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_project.h"

#include "adapters/jet/database.h"
#include "adapters/sqlite/jet_storage.h"

namespace hx::sqlite {

namespace {

using Type = jet::ColumnType;

constexpr std::uint16_t usualText = 255;
constexpr const char* emptyText = "\"\"";

void addText(jet::TablePlan& plan, const char* name) { plan.column(name, Type::text, usualText).standard(emptyText); }

jet::TablePlan recipes() {
    jet::TablePlan plan("TrcpRecipe");
    plan.counter("ID").column("Name", Type::text, usualText).required();
    addText(plan, "VarRecipeName");
    addText(plan, "VarDescription");
    plan.column("FilePath", Type::memo).standard(emptyText);
    addText(plan, "FileExtension");
    plan.column("Enabled", Type::yesNo).standard("False");
    for (const char* const name : {"Comment", "VarLoad", "VarSave", "VarRead", "VarWrite"}) addText(plan, name);
    plan.column("StandardValue", Type::real).standard("0");
    addText(plan, "VarSetValue");
    for (const char* const name : {"SaveSubRecipes", "SaveChanges", "CryptEngine"}) {
        plan.column(name, Type::yesNo).standard("False");
    }
    plan.column("Options", Type::longInteger).standard("0");
    plan.index("PrimaryKey", {"ID"}, {.primary = true}).index("Name", {"Name"}, {.unique = true});
    return plan;
}

jet::TablePlan members() {
    jet::TablePlan plan("TrcpRecipeMember");
    plan.counter("ID").column("ParentID", Type::longInteger).standard("0").required();
    addText(plan, "VarRecipe");
    plan.column("ChildID", Type::longInteger).standard("0").required();
    plan.index("PrimaryKey", {"ID"}, {.primary = true});
    plan.index("ParentID", {"ParentID"}).index("ChildID", {"ChildID"});
    plan.index(std::string(jet::Index::uniqueButEmpty), {"ParentID", "ChildID", "VarRecipe"});
    return plan;
}

}  // namespace

jet::TablePlan variableTablePlan() {
    constexpr std::uint16_t typeName = 20;
    jet::TablePlan plan{std::string(variableTable)};
    plan.counter("ID").column("Name", Type::text, usualText).required();
    plan.column("Type", Type::text, typeName).standard(emptyText);
    addText(plan, "Comment");
    plan.index("PrimaryKey", {"ID"}, {.primary = true}).index("Name", {"Name"}, {.unique = true});
    return plan;
}

void fillJetProject(const std::string& path) {
    LockWait wait(LockWait::Milliseconds(0), {});
    JetStorage storage(path, wait, automation::Language::english);
    jet::makeDatabase(storage);
    jet::Database database(storage, false);
    database.pages().beginWrite();
    for (const auto& plan : {recipes(), members(), variableTablePlan()}) jet::addTable(database, plan);
    database.pages().commit();
}

}  // namespace hx::sqlite
