// SPDX-License-Identifier: MIT
#include "editor_window.h"

#include "automation/convert.h"
#include "recipe/node_key.h"

namespace hx::editor {

using automation::Variant;

EditorWindow::EditorWindow() {
    addIn.resourceTexts.InitResources(host.registry);
    mix = addRecipe("Mix");
    syrup = addRecipe("Sirup");
    water = addRecipe("Wasser");
    for (const char* name : {"Tank.Level", "Tank.Temp", "Pump.Speed"}) addMember(mix, name);
    addMember(mix, "File.Syrup", syrup);
    addMember(mix, "File.Water", water);
    addMember(syrup, "Sugar.Mass");
    mixKey = recipe::makeKey(recipe::prefixRecipe, mix);
    mixSubRecipes = recipe::makeKey(recipe::prefixSubRecipes, mix);
    data->CnnRecipes->open(std::string("Data Source=") + projectFile);
    make();
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::make() {
    if (data->rstabRecipeMembers->state() == ado::adStateOpen) data->rstabRecipeMembers->close();
    window = std::make_shared<frmtabgrid>(addIn);
    window->setDataEnvironment(data);
    window->setPaths(projectFile, "/plant/second.hxs");
    window->setNodeKey(std::string(recipe::rootKey));
}

void EditorWindow::open() {
    window->load();
    host.windows.setParent(window->handle(), host.explorer.hostWindow());
    data->rstabRecipeMembers->setSource(recipe::memberQuery(recipe::rootKey));
    window->bindGrid();
    window->MenuSwitcher(std::string(recipe::rootKey), false);
    window->MakeMyCaption(std::string(recipe::rootKey), {});
    window->show();
}

void EditorWindow::useLanguage(std::int32_t code) {
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", code);
    addIn.resourceTexts.InitResources(host.registry);
}

void EditorWindow::show(const std::string& key) { window->chooseNode(key); }

std::int32_t EditorWindow::addRecipe(const std::string& name) {
    const std::vector<ado::ColumnValue> values = {{1, Variant(name)}};
    return static_cast<std::int32_t>(database.table("TrcpRecipe").insert(values));
}

std::int32_t EditorWindow::addMember(std::int32_t parent, const std::string& variable, std::int32_t child) {
    const std::vector<ado::ColumnValue> values = {{1, Variant(parent)}, {2, Variant(variable)}, {3, Variant(child)}};
    return static_cast<std::int32_t>(database.table("TrcpRecipeMember").insert(values));
}

std::string EditorWindow::storedVariable(std::int32_t member) {
    return automation::toText(database.table("TrcpRecipeMember").row(member)->at(2));
}

std::size_t EditorWindow::memberCount() { return database.table("TrcpRecipeMember").rows().size(); }

forms::Tool& EditorWindow::tool(const std::string& name) const {
    return window->abr->band(Variant("mnuMain")).tool(Variant(name));
}

forms::Column& EditorWindow::column(const std::string& field) const { return grid().column(Variant(field)); }

std::int32_t EditorWindow::columnNumber(const std::string& field) const { return grid().columnNumber(Variant(field)); }

Texts EditorWindow::shown(const std::string& field) const {
    Texts texts;
    for (std::int32_t row = 0; row < grid().rowCount(); ++row) texts.push_back(grid().text(row, columnNumber(field)));
    return texts;
}

void EditorWindow::selectRows(const Numbers& rows) {
    std::vector<ado::Bookmark> bookmarks;
    for (const std::int32_t row : rows) bookmarks.push_back(members().bookmarkAt(static_cast<std::size_t>(row)));
    grid().selectedRows().set(bookmarks);
}

Texts EditorWindow::messages() const {
    Texts texts;
    for (const auto& message : host.record.messages) texts.push_back(message.text);
    return texts;
}

void EditorWindow::refuseNextUpdate(std::int32_t number, const std::string& description) {
    faults.arm(1, support::FaultPlan::Kind::update, automation::Error(number, description));
}

}  // namespace hx::editor
