// SPDX-License-Identifier: MIT
#include "recipe/mhxrcp_hirarch_func.h"

#include <gtest/gtest.h>

#include "plant.h"

namespace hx::recipe {
namespace {

using automation::Variant;

TEST(MemberQuery, FollowsTheTypeOfTheNode) {
    EXPECT_EQ(memberQuery("RCPR17"), "SELECT * FROM TrcpRecipeMember WHERE ParentID = 17 And ChildID = 0");
    EXPECT_EQ(memberQuery("RCPU17"), "SELECT * FROM TrcpRecipeMember WHERE ParentID = 17 And ChildID <> 0");
    EXPECT_EQ(memberQuery("RCPE0"), "SELECT * FROM TrcpRecipeMember WHERE ParentID = -1");
    EXPECT_EQ(memberQuery("RCPE"), "SELECT * FROM TrcpRecipeMember WHERE ParentID = -1");
    EXPECT_EQ(memberQuery("VARS1"), "");
    EXPECT_EQ(memberQuery(""), "");
}

struct View {
    explicit View(DataEnvironment& data) : recordset(data.rstabRecipeMembers) {
        grid.setDataSource(recordset);
        for (const char* field : {"ID", "ParentID", "VarRecipe", "ChildID"}) grid.addColumn(field);
    }
    std::shared_ptr<ado::Recordset> recordset;
    forms::Grid grid{"tdbRM"};
    bool save = true;
    bool subRecipes = false;
};

struct RefreshingTheMembers : testing::Test {
    RefreshingTheMembers() {
        texts.AddResource(301, {"Variable", "Variable"});
        texts.AddResource(303, {"Dateiname", "File Name"});
        mix = plant.addRecipe("Mix");
        syrup = plant.addRecipe("Sirup");
        plant.addMember(mix, "B.Level");
        plant.addMember(mix, "File.Name", syrup);
        plant.addMember(mix, "A.Level");
        plant.addMember(syrup, "C.Level");
    }
    void show(const std::string& key) {
        view.subRecipes = RefreshMemberView(view.grid, *view.recordset, key, view.save, texts);
    }
    std::vector<std::string> variables() {
        std::vector<std::string> names;
        for (std::int32_t row = 0; row < view.grid.rowCount(); ++row) names.push_back(view.grid.text(row, 2));
        return names;
    }

    Plant plant;
    resources::ResourceTable texts;
    View view{plant.data};
    std::int32_t mix = 0, syrup = 0;
};

using Names = std::vector<std::string>;

TEST_F(RefreshingTheMembers, ARecipeShowsItsVariablesInTheOrderOfInsertion) {
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"B.Level", "A.Level"}));
    EXPECT_EQ(view.recordset->source(),
              "SELECT * FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID = 0 ORDER BY ID");
    EXPECT_FALSE(view.subRecipes);
}

TEST_F(RefreshingTheMembers, TheSubRecipesOfARecipeAreItsOtherMembers) {
    show("RCPU1");
    EXPECT_EQ(variables(), (Names{"File.Name"}));
    EXPECT_TRUE(view.subRecipes);
}

TEST_F(RefreshingTheMembers, TheRootShowsAnEmptyGridAndNoError) {
    show("RCPR1");
    show("RCPE");
    EXPECT_EQ(view.grid.rowCount(), 0);
    EXPECT_EQ(view.recordset->state(), ado::adStateOpen);
    EXPECT_EQ(view.recordset->source(), "SELECT * FROM TrcpRecipeMember WHERE ParentID = -1 ORDER BY ID");
}

TEST_F(RefreshingTheMembers, ASortTextIsAppendedAsItIs) {
    view.grid.setSortText("VarRecipe");
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"A.Level", "B.Level"}));
    view.grid.setSortText("VarRecipe DESC");
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"B.Level", "A.Level"}));
    EXPECT_EQ(view.recordset->source(),
              "SELECT * FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID = 0 ORDER BY VarRecipe DESC");
}

TEST_F(RefreshingTheMembers, ATranslatedColumnIsSortedByWhatItShows) {
    plant.addMember(mix, "Z.File", mix);
    plant.addMember(mix, "Y.File", syrup);
    view.grid.findColumn("ChildID")->valueItems().setSource(
        [&](const Variant& id) -> std::optional<std::string> { return id.asInt32() == mix ? "zwei" : "Eins"; });
    view.grid.setSortText("ChildID");
    show("RCPU1");
    EXPECT_EQ(variables(), (Names{"File.Name", "Y.File", "Z.File"}));
    EXPECT_EQ(view.recordset->source(),
              "SELECT * FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID <> 0 ORDER BY ChildID");
    view.grid.setSortText("[ChildID] desc");
    show("RCPU1");
    EXPECT_EQ(variables(), (Names{"Z.File", "File.Name", "Y.File"}));
}

TEST_F(RefreshingTheMembers, ATranslatedColumnIsItsFieldInAnyCase) {
    view.grid.clearColumns();
    for (const char* field : {"id", "parentid", "varrecipe", "childid"}) view.grid.addColumn(field);
    plant.addMember(mix, "Z.File", mix);
    view.grid.findColumn("childid")->valueItems().setSource(
        [&](const Variant& id) -> std::optional<std::string> { return id.asInt32() == mix ? "zwei" : "Eins"; });
    view.grid.setSortText("childid");
    show("RCPU1");
    EXPECT_EQ(variables(), (Names{"File.Name", "Z.File"}));
}

TEST_F(RefreshingTheMembers, OnlyTheSubRecipeViewShowsTheColumnOfTheSubRecipe) {
    show("RCPU1");
    EXPECT_TRUE(view.grid.findColumn("ChildID")->visible());
    EXPECT_EQ(view.grid.findColumn("VarRecipe")->caption(), "Dateiname");
    show("RCPR1");
    EXPECT_FALSE(view.grid.findColumn("ChildID")->visible());
    EXPECT_EQ(view.grid.findColumn("VarRecipe")->caption(), "Variable");
}

TEST_F(RefreshingTheMembers, AGridWithoutColumnsIsReloadedAllTheSame) {
    view.grid.clearColumns();
    show("RCPU1");
    EXPECT_TRUE(view.subRecipes);
    EXPECT_EQ(view.grid.rowCount(), 1);
}

TEST_F(RefreshingTheMembers, APendingEditIsSavedBeforeTheQueryChanges) {
    show("RCPR1");
    view.recordset->field("VarRecipe").setValue("Z.Level");
    show("RCPR2");
    EXPECT_EQ(variables(), (Names{"C.Level"}));
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"Z.Level", "A.Level"}));
}

TEST_F(RefreshingTheMembers, APendingEditIsSavedBeforeTheSameRowsAreShownAgain) {
    show("RCPR1");
    view.recordset->field("VarRecipe").setValue("Z.Level");
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"Z.Level", "A.Level"}));
    EXPECT_EQ(view.recordset->editMode(), ado::adEditNone);
}

TEST_F(RefreshingTheMembers, RowsThatAreShownAgainAreAllThere) {
    show("RCPR1");
    view.recordset->setFilter("VarRecipe = 'A.Level'");
    ASSERT_EQ(variables(), (Names{"A.Level"}));
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"B.Level", "A.Level"}));
}

TEST_F(RefreshingTheMembers, APendingEditIsDroppedWhenTheEditorDoesNotSaveFirst) {
    view.save = false;
    show("RCPR1");
    view.recordset->field("VarRecipe").setValue("Z.Level");
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"B.Level", "A.Level"}));
}

TEST_F(RefreshingTheMembers, ADatabaseErrorReachesTheCaller) {
    plant.faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_THROW(show("RCPR1"), automation::Error);
}

TEST_F(RefreshingTheMembers, ANodeOfAnotherKindHasNoQueryToOpen) { EXPECT_THROW(show("VARS1"), automation::Error); }

TEST_F(RefreshingTheMembers, FindsTheQueryAlsoAfterATableWasOpenedOnTheSameRecordset) {
    view.recordset->open("TrcpRecipeMember", nullptr, ado::adOpenKeyset, ado::adLockOptimistic, ado::adCmdTableDirect);
    show("RCPR1");
    EXPECT_EQ(variables(), (Names{"B.Level", "A.Level"}));
}

TEST_F(RefreshingTheMembers, ReadsNoRow) {
    plant.faults.arm(1, support::FaultPlan::Kind::read);
    show("RCPR1");
    EXPECT_EQ(view.recordset->recordCount(), 2);
    EXPECT_FALSE(plant.faults.fired());
}

}  // namespace
}  // namespace hx::recipe
