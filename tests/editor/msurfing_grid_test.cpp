// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct MSurfingGrid : EditorWindow {
    MSurfingGrid() { open(); }
};

TEST_F(MSurfingGrid, HasOneColumnAFieldInFieldOrder) {
    Texts fields;
    for (const auto& each : grid().columns()) fields.push_back(each->dataField());
    EXPECT_EQ(fields, (Texts{"ID", "ParentID", "VarRecipe", "ChildID"}));
    EXPECT_EQ(grid().dataMember(), "tabRecipeMembers");
    EXPECT_EQ(grid().dataSource(), data->rstabRecipeMembers);
}

TEST_F(MSurfingGrid, HasGermanCaptionsForItsTwoColumnsAndFieldNamesForTheOthers) {
    EXPECT_EQ(column("ID").caption(), "ID");
    EXPECT_EQ(column("ParentID").caption(), "ParentID");
    EXPECT_EQ(column("VarRecipe").caption(), "Variable");
    EXPECT_EQ(column("ChildID").caption(), "Unterrezept");
}

TEST_F(MSurfingGrid, HasEnglishCaptions) {
    useLanguage(english);
    window->bindGrid();
    EXPECT_EQ(column("VarRecipe").caption(), "Variable");
    EXPECT_EQ(column("ChildID").caption(), "Sub Recipe");
}

TEST_F(MSurfingGrid, HasTheDefaultLayout) {
    EXPECT_EQ(column("VarRecipe").width(), 3000);
    EXPECT_EQ(column("ChildID").width(), 300);
    for (const char* field : {"VarRecipe", "ChildID"}) {
        EXPECT_TRUE(column(field).visible()) << field;
        EXPECT_TRUE(column(field).allowSizing()) << field;
    }
    EXPECT_EQ(grid().font().name(), "Arial");
    EXPECT_EQ(grid().font().weight(), 400);
}

TEST_F(MSurfingGrid, ShowsOnlyTheColumnsThatTheLayoutNames) {
    EXPECT_FALSE(column("ID").visible());
    EXPECT_FALSE(column("ParentID").visible());
}

TEST_F(MSurfingGrid, LetsNobodyTypeKeysOrRecipes) {
    show(mixSubRecipes);
    for (const char* field : {"ID", "ParentID", "ChildID"}) {
        EXPECT_TRUE(column(field).locked()) << field;
        EXPECT_FALSE(grid().editable(columnNumber(field))) << field;
    }
    EXPECT_TRUE(grid().editable(columnNumber("VarRecipe")));
}

TEST_F(MSurfingGrid, HasACellButtonWithAPictureForTheVariableOnly) {
    EXPECT_TRUE(column("VarRecipe").button());
    EXPECT_FALSE(column("VarRecipe").buttonPicture().empty());
    for (const char* field : {"ID", "ParentID", "ChildID"}) EXPECT_FALSE(column(field).button()) << field;
}

TEST_F(MSurfingGrid, AppliesTheStoredLayout) {
    host.iniFile.setBytes(
        iniPath,
        "[frmtabGridRCP]\r\ntdbRM.Font.Name=Courier\r\ntdbRM.Font.Size=11\r\n"
        "tdbRM.Columns(\"VarRecipe\").Width=1700\r\ntdbRM.Columns(\"VarRecipe\").AllowSizing=False\r\n"
        "tdbRM.Columns(\"ChildID\").Visible=False\r\ntdbRMColOrders=,1,0,3,2\r\n");
    make();
    open();
    EXPECT_EQ(grid().font().name(), "Courier");
    EXPECT_EQ(grid().font().size(), 11);
    EXPECT_EQ(column("VarRecipe").width(), 1700);
    EXPECT_FALSE(column("VarRecipe").allowSizing());
    EXPECT_FALSE(column("ChildID").visible());
    EXPECT_EQ(column("ID").order(), 1);
    EXPECT_EQ(column("ParentID").order(), 0);
    EXPECT_EQ(column("VarRecipe").order(), 3);
    EXPECT_EQ(column("ChildID").order(), 2);
}

TEST_F(MSurfingGrid, IgnoresNumbersOfAStoredOrderBeyondItsColumns) {
    window->inits().WriteAValueToCInits("tdbRMColOrders", Variant(",3,2,1,0,7,8"));
    window->bindGrid();
    EXPECT_EQ(column("ID").order(), 3);
    EXPECT_EQ(column("ChildID").order(), 0);
}

TEST_F(MSurfingGrid, KeepsItsOrderWithAnEmptyStoredOne) {
    window->inits().WriteAValueToCInits("tdbRMColOrders", Variant(""));
    window->bindGrid();
    EXPECT_EQ(column("ID").order(), 0);
    EXPECT_EQ(column("ChildID").order(), 3);
}

TEST_F(MSurfingGrid, ComesThroughADamagedStoredLayout) {
    host.iniFile.setBytes(
        iniPath,
        "[frmtabGridRCP]\r\ntdbRM.Columns(\"VarRecipe\").Width=wide\r\n"
        "tdbRM.Columns(\"VarRecipe\").Visible=perhaps\r\ntdbRMColOrders=,x,y\r\ntdbRM.Font.Size=0\r\n");
    make();
    open();
    EXPECT_TRUE(column("VarRecipe").visible());
    EXPECT_EQ(column("VarRecipe").width(), forms::Column::defaultWidth);
    EXPECT_EQ(column("ChildID").width(), 300);
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("\r\ntdbRM.Font.Size=0 ("), std::string::npos) << messages()[0];
}

TEST_F(MSurfingGrid, HasTheFontOfTheWindowWhereItsOwnCannotBeApplied) {
    host.iniFile.setBytes(iniPath, "[frmtabGridRCP]\r\nMe.Font.Size=11\r\ntdbRM.Font.Size=0\r\n");
    make();
    open();
    EXPECT_EQ(grid().font().size(), 11);
}

TEST_F(MSurfingGrid, BuildsItsColumnsAnewEachTime) {
    window->bindGrid();
    EXPECT_EQ(grid().columns().size(), 4U);
}

TEST_F(MSurfingGrid, OpensAClosedRecordsetAndKeepsAnOpenOne) {
    members().close();
    window->bindGrid();
    EXPECT_EQ(members().state(), ado::adStateOpen);
    window->bindGrid();
    EXPECT_EQ(members().state(), ado::adStateOpen);
}

TEST_F(MSurfingGrid, ShowsTheVariablesOfARecipe) {
    show(mixKey);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    EXPECT_FALSE(window->subRecipeView());
}

TEST_F(MSurfingGrid, ShowsSubRecipesByTheirNames) {
    show(mixSubRecipes);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    EXPECT_EQ(column("VarRecipe").caption(), "Dateiname");
    EXPECT_TRUE(window->subRecipeView());
}

TEST_F(MSurfingGrid, ShowsNothingForARecipeThatIsGoneAndForNone) {
    addMember(syrup, "File.Gone", 999);
    addMember(syrup, "File.None", -3);
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"", ""}));
    show(mixKey);
    EXPECT_EQ(shown("ChildID"), (Texts{"", "", ""}));
}

TEST_F(MSurfingGrid, ShowsNoRowsOfANodeThatIsReadByHalf) {
    show(mixKey);
    selectRows({1});
    faults.arm(2, support::FaultPlan::Kind::open);  // the members, then the name
    EXPECT_THROW(window->showNode(mixKey), automation::Error);
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(MSurfingGrid, ShowsNoSubRecipeInANewRowOrWithoutADatabase) {
    show(mixSubRecipes);
    window->setDataEnvironment(nullptr);
    EXPECT_EQ(shown("ChildID"), (Texts{"", ""}));
    window->setDataEnvironment(data);
    grid().setAddNewMode(true);
    EXPECT_EQ(grid().text(-1, columnNumber("ChildID")), "");
    grid().setAddNewMode(false);
    data->CnnRecipes->close();
    EXPECT_EQ(window->recipeName(mixKey), "");
}

TEST_F(MSurfingGrid, KeepsTheNamesUntilTheyAreRefreshed) {
    show(mixSubRecipes);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    const std::vector<ado::ColumnValue> renamed = {{1, Variant("Melasse")}};
    database.table("TrcpRecipe").update(syrup, renamed);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    window->refreshSubRecipeNames();
    EXPECT_EQ(shown("ChildID"), (Texts{"Melasse", "Wasser"}));
}

TEST_F(MSurfingGrid, AsksAgainForANameThatCouldNotBeRead) {
    show(mixSubRecipes);
    faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_THROW((void)grid().text(0, columnNumber("ChildID")), automation::Error);
    EXPECT_TRUE(faults.fired());
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
}

TEST_F(MSurfingGrid, TellsWhatItsViewCouldNotRead) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    grid().viewFailed(automation::Error(7, "The disk cannot be read."));
    EXPECT_EQ(messages(), Texts{"7: The disk cannot be read."});
    EXPECT_EQ(host.record.messages[0].title, "tdbRM");
    EXPECT_TRUE(busy);
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(MSurfingGrid, ShowsNoRowsForTheRoot) {
    show("RCPE");
    EXPECT_EQ(grid().rowCount(), 0);
}

TEST_F(MSurfingGrid, SortsByTheClickedHeader) {
    show(mixKey);
    host.record.pointers.clear();
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Tank.Level", "Tank.Temp"}));
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp", "Tank.Level", "Pump.Speed"}));
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
}

TEST_F(MSurfingGrid, KeepsRowAndSelectionWhereTheyAreWhenItIsSorted) {
    show(mixKey);
    grid().setRow(2);
    selectRows({2, 0});
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Pump.Speed");
    EXPECT_EQ(grid().row(), 0);
    ASSERT_EQ(grid().selectedRows().count(), 2);
    EXPECT_EQ(members().indexOf(grid().selectedRows().bookmarks()[0]), 0);
    EXPECT_EQ(members().indexOf(grid().selectedRows().bookmarks()[1]), 1);
}

TEST_F(MSurfingGrid, KeepsTheSelectedRowsThatAreLeftAfterARefresh) {
    show(mixKey);
    grid().setRow(1);
    selectRows({0, 1});
    database.table("TrcpRecipeMember").remove(2);
    window->refreshMembers();
    EXPECT_EQ(grid().rowCount(), 2);
    ASSERT_EQ(grid().selectedRows().count(), 1);
    EXPECT_EQ(members().indexOf(grid().selectedRows().bookmarks()[0]), 0);
    EXPECT_EQ(grid().row(), 0) << "the current row is gone";
}

TEST_F(MSurfingGrid, ForgetsRowAndSelectionWithANewNode) {
    show(mixKey);
    grid().setRow(2);
    selectRows({1});
    show(mixSubRecipes);
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(grid().selectedRows().count(), 0);
    show(mixKey);
    EXPECT_EQ(grid().row(), 0);
}

TEST_F(MSurfingGrid, WritesAPendingEditBeforeARefresh) {
    show(mixKey);
    type(0, "Tank.Pressure");
    window->refreshMembers();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
    EXPECT_EQ(shown("VarRecipe")[0], "Tank.Pressure");
    EXPECT_FALSE(grid().dataChanged());
}

TEST_F(MSurfingGrid, KeepsAPendingEditThatCannotBeWritten) {
    show(mixKey);
    type(0, "Tank.Pressure");
    faults.arm(1, support::FaultPlan::Kind::update);
    window->refreshMembers();
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(shown("VarRecipe")[0], "Tank.Pressure");
    EXPECT_TRUE(grid().dataChanged());
    window->refreshMembers();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(MSurfingGrid, WithoutADatabaseRefreshesNothing) {
    show(mixKey);
    window->setDataEnvironment(nullptr);
    window->refreshMembers();
    window->bindGrid();
    window->refreshSubRecipeNames();
    EXPECT_THROW((void)window->memberRecordset(), automation::Error);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(MSurfingGrid, ReportsASortThatTheDatabaseFails) {
    show(mixKey);
    faults.arm(1, support::FaultPlan::Kind::open);
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "tdbRM_HeadClick");
}

TEST_F(MSurfingGrid, ARefreshThatFailsReachesItsCaller) {
    faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_THROW(show(mixKey), automation::Error);
}

TEST_F(MSurfingGrid, ShowsNoRowsAfterARefreshThatFails) {
    show(mixKey);
    std::vector<std::int32_t> counts;
    const auto watch = grid().rowsChanged.subscribe([&] { counts.push_back(grid().rowCount()); });
    faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_THROW(show(mixSubRecipes), automation::Error);
    EXPECT_EQ(counts, (std::vector<std::int32_t>{0, 0})) << "at the failure, and once no node is shown";
    counts.clear();
    show(mixSubRecipes);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
}

}  // namespace
}  // namespace hx::editor
