// SPDX-License-Identifier: MIT
#include "command_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct NewRecipe : CommandWindow {};

TEST_F(NewRecipe, RecipesInARowAreNumbered) {
    for (int i = 0; i < 3; ++i) click("mnuRecipeNew");
    EXPECT_EQ(storedRecipes(),
              (Texts{"1 Mix", "2 Sirup", "3 Wasser", "4 Neues Rezept", "5 Neues Rezept(2)", "6 Neues Rezept(3)"}));
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(NewRecipe, HasANodeUnderTheRootAndItsSubRecipesUnderThat) {
    click("mnuRecipeNew");
    const auto& tree = host.explorer.tree();
    const auto node = tree.find("RCPR4");
    EXPECT_EQ(tree.key(tree.parent(node)), "RCPE0");
    EXPECT_EQ(tree.caption(node), "Neues Rezept");
    EXPECT_EQ(tree.image(node), "icoRcpRecipe");
    EXPECT_EQ(tree.key(tree.parent(tree.find("RCPU4"))), "RCPR4");
}

TEST_F(NewRecipe, IsAlsoNumberedInEnglishWithItsGermanName) {
    useLanguage(english);
    click("mnuRecipeNew");
    EXPECT_EQ(shownNodes()[6], "RCPR4 Neues Rezept");
    EXPECT_EQ(shownNodes()[7], "RCPU4 Sub Recipes");
}

TEST_F(NewRecipe, TakesTheFirstFreeName) {
    addRecipe("NEUES REZEPT");
    addRecipe("Neues Rezept(3)");
    click("mnuRecipeNew");
    click("mnuRecipeNew");
    const Texts stored = storedRecipes();
    EXPECT_EQ(stored[5], "6 Neues Rezept(2)");
    EXPECT_EQ(stored[6], "7 Neues Rezept(4)");
}

TEST_F(NewRecipe, StartsWithTheDefaultsOfItsTable) {
    click("mnuRecipeNew");
    const auto& row = *database.table("TrcpRecipe").row(4);
    const auto& columns = database.table("TrcpRecipe").columns();
    for (std::size_t column = 2; column < row.size(); ++column) {
        const Variant empty = columns[column].type == ado::adBoolean   ? Variant(false)
                              : columns[column].type == ado::adDouble  ? Variant(0.0)
                              : columns[column].type == ado::adInteger ? Variant(0)
                                                                       : Variant("");
        EXPECT_EQ(row[column], empty) << columns[column].name;
    }
}

TEST_F(NewRecipe, LeavesTheRootShown) {
    click("mnuRecipeNew");
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
}

TEST_F(NewRecipe, IsStoredAlsoWhenTheTableIsOpenAlready) {
    data->rsRecipes->open();
    click("mnuRecipeNew");
    EXPECT_EQ(storedRecipes().back(), "4 Neues Rezept");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(NewRecipe, ReadsTheMembersAnew) {
    show(mixKey);
    addMember(mix, "Late");
    window->commands().mnuRecipeFunc(0);
    EXPECT_EQ(shown("VarRecipe").back(), "Late");
}

TEST_F(NewRecipe, IsKnownByNameToTheGridAtOnce) {
    addMember(mix, "File.New", 4);
    show(mixSubRecipes);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser", ""}));
    window->commands().mnuRecipeFunc(0);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser", "Neues Rezept"}));
}

TEST_F(NewRecipe, RefusedNamesAreNotTakenForTheReasonOfALaterError) {
    click("mnuRecipeNew");
    click("mnuRecipeNew");
    expectNoOldDuplicate();
}

TEST_F(NewRecipe, IsThereWithItsNodeOrNotAtAllWhateverFails) {
    withEachFault([] {}, [this] { click("mnuRecipeNew"); },
                  [this] { EXPECT_EQ(shownNodes(), nodesOfStoredRecipes()); });
    EXPECT_EQ(storedRecipes().size(), 4U);
}

TEST_F(NewRecipe, ThatCannotBeStoredIsReportedOnce) {
    faults.arm(1, support::FaultPlan::Kind::insert);
    click("mnuRecipeNew");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
    EXPECT_EQ(storedRecipes().size(), 3U);
    EXPECT_EQ(faults.count(), 1) << "another name would not help";
}

TEST_F(NewRecipe, ThatTheExplorerRefusesIsReported) {
    host.explorer.removeNode("RCPE0");
    click("mnuRecipeNew");
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(storedRecipes().size(), 4U) << "the view can be refreshed";
    expectAtRest();
}

TEST_F(NewRecipe, WorksWithoutAnExplorer) {
    addIn.node = nullptr;
    click("mnuRecipeNew");
    EXPECT_EQ(storedRecipes().size(), 4U);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(NewRecipe, WithoutADatabaseIsReported) {
    window->setDataEnvironment(nullptr);
    click("mnuRecipeNew");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

}  // namespace
}  // namespace hx::editor
