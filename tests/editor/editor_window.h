// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "editor/commands.h"
#include "editor/frmtabgrid.h"
#include "support/faulty_provider.h"
#include "support/memory_provider.h"

namespace hx::editor {

/// Stands for the add-in that owns the window.
struct FakeAddIn : AddIn {
    explicit FakeAddIn(const host::Services& lent, host::ProjectExplorer& tree)
        : hostServices(lent), onlineHelp(lent), node(&tree) {}
    void RefreshView() override {
        ++refreshes;
        if (onRefresh) onRefresh();
    }
    host::ProjectExplorer* explorer() const override { return node; }
    const host::Services& services() const override { return hostServices; }
    const resources::ResourceTable& texts() const override { return resourceTexts; }
    resources::Help& help() override { return onlineHelp; }
    recipe::StatusCounters& counters() override { return statusCounters; }
    bool& busy() override { return busyFlag; }

    const host::Services& hostServices;
    resources::ResourceTable resourceTexts;
    resources::Help onlineHelp;
    recipe::StatusCounters statusCounters;
    bool busyFlag = false;
    host::ProjectExplorer* node;
    int refreshes = 0;
    std::function<void()> onRefresh;
};

/// Notes the commands in place of running them.
struct NotedCommands : Commands {
    NotedCommands(frmtabgrid& owner, AddIn& addIn, std::vector<std::string>& list)
        : Commands(owner, addIn), noted(list) {}
    void mnuRecipeFunc(std::int16_t index) override { note("mnuRecipeFunc", index); }
    void mnuRecipeMember(std::int16_t index) override { note("mnuRecipeMember", index); }
    void mnuOption(std::int16_t index) override { note("mnuOption", index); }
    void mnuShowEditor(std::int16_t) override { noted.emplace_back("mnuShowEditor"); }

    std::vector<std::string>& noted;

  private:
    void note(const std::string& procedure, std::int16_t index) {
        noted.push_back(procedure + "(" + std::to_string(index) + ")");
    }
};

using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int32_t>;

/// An editor window over a project in memory: three recipes, "Mix" with three variables and two sub-recipes.
class EditorWindow : public testing::Test {
  protected:
    static constexpr const char* projectFile = "/plant/line.hxs";
    static constexpr const char* iniPath = "/plant/HXEditors.ini";
    static constexpr std::int32_t german = 1031, english = 1033;

    EditorWindow();
    ~EditorWindow() override;

    /// Makes the window anew, not loaded.
    void make();
    /// Loads it as the add-in does, and binds the grid.
    void open();
    void useLanguage(std::int32_t code);
    /// From now on commands are noted in `commands`.
    void noteCommands() { window->setCommands(std::make_unique<NotedCommands>(*window, addIn, commands)); }
    /// Shows the members of a node as a click on it does.
    void show(const std::string& key);

    std::int32_t addRecipe(const std::string& name);
    std::int32_t addMember(std::int32_t parent, const std::string& variable, std::int32_t child = 0);
    /// From the database, by ID.
    [[nodiscard]] std::string storedVariable(std::int32_t member);
    [[nodiscard]] std::size_t memberCount();

    [[nodiscard]] forms::Tool& tool(const std::string& name) const;
    [[nodiscard]] forms::Column& column(const std::string& field) const;
    [[nodiscard]] std::int32_t columnNumber(const std::string& field) const;
    /// The shown texts of a column, row by row.
    [[nodiscard]] Texts shown(const std::string& field) const;
    void type(std::int32_t row, const std::string& text) { grid().setText(row, columnNumber("VarRecipe"), text); }
    void selectRows(const Numbers& rows);

    [[nodiscard]] forms::Grid& grid() const { return *window->tdbRM; }
    [[nodiscard]] ado::Recordset& members() const { return *data->rstabRecipeMembers; }
    [[nodiscard]] Texts messages() const;
    /// The database fails the next update of a row with this error.
    void refuseNextUpdate(std::int32_t number, const std::string& description = "Refused.");

    support::MemoryProvider memory;
    support::MemoryDatabase& database = memory.add(projectFile);
    support::FaultPlan faults;
    support::FaultyProvider provider{memory, faults};
    headless::Host host{provider};
    FakeAddIn addIn{host.services(), host.explorer};
    std::shared_ptr<recipe::DataEnvironment> data = std::make_shared<recipe::DataEnvironment>(provider);
    std::shared_ptr<frmtabgrid> window;
    std::int32_t mix = 0, syrup = 0, water = 0;
    std::string mixKey, mixSubRecipes;
    Texts commands;
};

}  // namespace hx::editor
