// SPDX-License-Identifier: MIT

// Projects of which another program has made the tables: the editor asks the rows, not their places.
#include "adapters/sqlite/database.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "editor/recipe_rows.h"
#include "editor_window.h"
#include "support/temporary_folder.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct StoredOtherwise : testing::Test {
    StoredOtherwise() {
        sqlite::createProject(path);
        execute(
            "INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Mix'), (2, 'Sirup');"
            "INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe, ChildID) VALUES (11, 1, 'C', 0), (12, 1, 'B', 0), "
            "(13, 1, 'A', 0), (21, 2, 'X', 0), (22, 2, 'Y', 0)");
    }
    void execute(const std::string& sql) const { sqlite::Database(path).execute(sql); }
    /// The members in another form, under their old name.
    void makeMembers(const std::string& what) const { execute("ALTER TABLE TrcpRecipeMember RENAME TO Old;" + what); }
    void open() {
        addIn.resourceTexts.InitResources(host.registry);
        data->CnnRecipes->open("Data Source=" + path);
        window->setDataEnvironment(data);
        window->setPaths(path, path);
        window->load();
        window->inits().WriteAValueToCInits("RequestOnDelete", Variant(false));
        window->showNode("RCPR1");
    }
    void select(const std::vector<std::size_t>& rows) const {
        for (const std::size_t row : rows) {
            window->tdbRM->selectedRows().add(data->rstabRecipeMembers->bookmarkAt(row));
        }
    }
    [[nodiscard]] Texts stored() const {
        Texts variables;
        for (const char* recipe : {"RCPR1", "RCPR2"}) {
            const Members members = membersOf(recipe[4] - '0', data->CnnRecipes);
            for (const Member& each : members.sorted()) variables.emplace_back(each.variable);
        }
        return variables;
    }

    /// The first and the third row go: neither keys nor places are their IDs.
    void expectDeletedById() {
        open();
        select({0, 2});
        window->MenuSwitcher("RCPR1", false);
        window->abr->click("mnuRecipeMemberDelete");
        EXPECT_TRUE(host.record.messages.empty()) << host.record.messages[0].text;
        EXPECT_EQ(stored(), (Texts{"B", "X", "Y"}));
    }

    support::TemporaryFolder folder;
    const std::string path = folder.file("line.hxs");
    sqlite::Provider provider;
    headless::Host host{provider};
    FakeAddIn addIn{host.services(), host.explorer};
    std::shared_ptr<recipe::DataEnvironment> data = std::make_shared<recipe::DataEnvironment>(provider);
    std::shared_ptr<frmtabgrid> window = std::make_shared<frmtabgrid>(addIn);
};

TEST_F(StoredOtherwise, MembersAreReadByTheirIdsWhateverIndexHelps) {
    execute("CREATE INDEX ByName ON TrcpRecipeMember (ParentID, VarRecipe, ChildID)");
    open();
    EXPECT_EQ(stored(), (Texts{"C", "B", "A", "X", "Y"}));
}

TEST_F(StoredOtherwise, RowsAreDeletedByTheirIdsWhereThoseAreNoKeys) {
    makeMembers("CREATE TABLE TrcpRecipeMember AS SELECT * FROM Old ORDER BY ID DESC");
    expectDeletedById();
}

TEST_F(StoredOtherwise, RowsAreDeletedByTheirIdsWhereTheKeyIsAnother) {
    makeMembers(
        "CREATE TABLE TrcpRecipeMember (Number INTEGER PRIMARY KEY, ID INTEGER, ParentID INTEGER, VarRecipe TEXT, "
        "ChildID INTEGER); INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe, ChildID) SELECT ID, ParentID, "
        "VarRecipe, ChildID FROM Old ORDER BY ID DESC");
    expectDeletedById();
}

TEST_F(StoredOtherwise, AnotherNodeKeepsNeitherRowNorSelectionWhereRowsAreOnlyCounted) {
    makeMembers(
        "CREATE TABLE TrcpRecipeMember (ID INT PRIMARY KEY, ParentID INTEGER, VarRecipe TEXT, ChildID INTEGER) "
        "WITHOUT ROWID; INSERT INTO TrcpRecipeMember SELECT ID, ParentID, VarRecipe, ChildID FROM Old");
    open();
    window->tdbRM->setRow(1);
    select({1});
    window->refreshMembers();
    EXPECT_EQ(window->tdbRM->row(), 1);
    EXPECT_EQ(window->tdbRM->selectedRows().count(), 1);
    window->showNode("RCPR2");
    EXPECT_EQ(window->tdbRM->row(), 0);
    EXPECT_EQ(window->tdbRM->selectedRows().count(), 0);
}

TEST_F(StoredOtherwise, ChosenVariablesAreNoSubRecipesAlsoWhereTheTableHasNoDefault) {
    makeMembers(
        "CREATE TABLE TrcpRecipeMember (ID INTEGER PRIMARY KEY, ParentID INTEGER, VarRecipe TEXT, ChildID INTEGER)");
    open();
    ASSERT_FALSE(replaceMembers(1, {}, {"New"}, data->CnnRecipes, addIn.resourceTexts));
    window->refreshMembers();
    EXPECT_EQ(window->tdbRM->rowCount(), 1);
}

}  // namespace
}  // namespace hx::editor
