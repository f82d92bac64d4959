// SPDX-License-Identifier: MIT

// The program ends in the middle of a command: the project then holds the state before it, or the one after it.
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "automation/convert.h"
#include "dialogs/fmulti_select_items.h"
#include "editor_window.h"
#include "support/temporary_folder.h"

namespace hx::editor {
namespace {

using automation::Variant;
using Values = std::vector<std::pair<std::string, Variant>>;

/// An editor that shows the variables of the first recipe of a project file.
struct Editor {
    explicit Editor(const std::string& path) {
        addIn.resourceTexts.InitResources(host.registry);
        host.explorer.addNode({.caption = "Rezepte", .key = "RCPE0"});
        host.explorer.addNode({.parent = "RCPE0", .caption = "Mix", .key = "RCPR1"});
        data->CnnRecipes->open("Data Source=" + path);
        window->setDataEnvironment(data);
        window->setPaths(path, path);
        window->setNodeKey("RCPE0");
        window->load();
        data->rstabRecipeMembers->setSource(recipe::memberQuery("RCPE0"));
        window->bindGrid();
        window->inits().WriteAValueToCInits("RequestOnDelete", Variant(false));
        window->showNode("RCPR1");
    }
    void click(const std::string& tool) {
        window->MenuSwitcher(window->nodeKey(), false);
        window->abr->click(tool);
    }

    sqlite::Provider sqlite;
    support::FaultPlan faults;
    support::FaultyProvider provider{sqlite, faults};
    headless::Host host{provider};
    FakeAddIn addIn{host.services(), host.explorer};
    std::shared_ptr<recipe::DataEnvironment> data = std::make_shared<recipe::DataEnvironment>(provider);
    std::shared_ptr<frmtabgrid> window = std::make_shared<frmtabgrid>(addIn);
};

using Command = std::function<void(Editor&)>;

struct Crash : testing::Test {
    void makeProject() {
        unlink(path.c_str());
        sqlite::createProject(path);
        for (const char* name : {"Mix", "Sirup"}) add("TrcpRecipe", {{"Name", name}});
        for (const char* name : {"Tank.Level", "Tank.Temp", "Pump.Speed"}) addMember(1, name, 0);
        addMember(1, "File.Syrup", 2);
        addMember(2, "Sugar.Mass", 0);
    }
    void addMember(std::int32_t parent, const std::string& variable, std::int32_t child) {
        add("TrcpRecipeMember", {{"ParentID", parent}, {"VarRecipe", variable}, {"ChildID", child}});
    }
    void add(const std::string& table, const Values& values) {
        ado::Recordset recordset;
        recordset.open(table, connect());
        recordset.addNew(values);
    }
    std::shared_ptr<ado::Connection> connect() {
        auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + path);
        return connection;
    }
    /// The recipes and members, as another program reads them.
    std::string stored() {
        std::string all;
        const auto connection = connect();
        for (const auto& [table, column] :
             {std::pair("TrcpRecipe", "Name"), std::pair("TrcpRecipeMember", "VarRecipe")}) {
            ado::Recordset recordset;
            recordset.open(table, connection);
            for (; !recordset.eof(); recordset.moveNext()) {
                all += automation::toText(recordset.field(column).value()) + " ";
            }
        }
        return all;
    }
    /// Runs the command in a process of its own that ends at the n-th operation on the database. True when it did.
    bool crashAt(int nth, const Command& command) {
        constexpr int crashed = 7;
        const pid_t child = fork();
        if (child == 0) {
            Editor editor(path);
            editor.faults.instead = [] { _exit(crashed); };
            editor.faults.arm(nth);
            command(editor);
            _exit(0);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == crashed;
    }
    /// Ends the command at every operation in turn: the project is then as before it, or as after it. Gives how often
    /// it is as before.
    int crashEverywhere(const Command& command, const std::string& after) {
        makeProject();
        const std::string before = stored();
        int unchanged = 0;
        for (int nth = 1;; ++nth) {
            makeProject();
            const bool ended = crashAt(nth, command);
            const std::string now = stored();
            EXPECT_TRUE(now == before || now == after) << nth << ": " << now;
            if (now == before) ++unchanged;
            if (ended) continue;
            EXPECT_EQ(now, after);
            return unchanged;
        }
    }

    support::TemporaryFolder folder;
    std::string path = folder.file("plant.hxs");
    sqlite::Provider provider;
};

TEST_F(Crash, WhileVariablesAreReplacedLeavesTheOldOnes) {
    const Command replace = [](Editor& editor) {
        editor.host.script.onModal["FMultiSelectItems"] = [](forms::Form& form) {
            auto& dialog = dynamic_cast<dialogs::FMultiSelectItems&>(form);
            dialog.hxMI->setSelectedItems(Texts{"A", "B", "C"});
            dialog.cmdOk->click();
        };
        editor.click("mnuRecipeMemberNewVariable");
    };
    EXPECT_GT(crashEverywhere(replace, "Mix Sirup Sugar.Mass A B C "), 5);
}

TEST_F(Crash, WhileARecipeIsDeletedLeavesItWithItsMembers) {
    const Command remove = [](Editor& editor) { editor.click("mnuRecipeDelete"); };
    EXPECT_GT(crashEverywhere(remove, "Sirup Sugar.Mass "), 3);
}

TEST_F(Crash, WhileMembersAreDeletedLeavesThemAll) {
    const Command remove = [](Editor& editor) {
        forms::SelectedRows& selected = editor.window->tdbRM->selectedRows();
        for (const std::size_t row : {0U, 1U, 2U}) selected.add(editor.data->rstabRecipeMembers->bookmarkAt(row));
        editor.click("mnuRecipeMemberDelete");
    };
    EXPECT_GT(crashEverywhere(remove, "Mix Sirup File.Syrup Sugar.Mass "), 4);
}

TEST_F(Crash, WhileARecipeIsMadeLeavesNone) {
    const Command create = [](Editor& editor) {
        editor.window->showNode("RCPE0");
        editor.click("mnuRecipeNew");
    };
    EXPECT_GT(crashEverywhere(create, "Mix Sirup Neues Rezept Tank.Level Tank.Temp Pump.Speed File.Syrup Sugar.Mass "),
              3);
}

}  // namespace
}  // namespace hx::editor
