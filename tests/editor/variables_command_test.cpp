// SPDX-License-Identifier: MIT
#include "command_window.h"
#include "dialogs/fmulti_select_items.h"

namespace hx::editor {
namespace {

using automation::Variant;
using dialogs::FMultiSelectItems;

struct ChooseVariables : CommandWindow {
    ChooseVariables() { show(mixKey); }

    /// The user's selection, confirmed by OK; given up when that is refused.
    void choose(const std::optional<Texts>& names) {
        inDialog<FMultiSelectItems>("FMultiSelectItems", [names](FMultiSelectItems& dialog) {
            dialog.hxMI->setSelectedItems(names);
            dialog.cmdOk->click();
            if (dialog.visible()) dialog.cmdCancel->click();
        });
        click("mnuRecipeMemberNewVariable");
    }
    static Texts named(const std::string& prefix, int count) {
        Texts names;
        for (int i = 0; i < count; ++i) names.push_back(prefix + std::to_string(i));
        return names;
    }
    const Texts variables = {"Tank.Level", "Tank.Temp", "Pump.Speed"};
    const Texts others = {"2 Sugar.Mass 0"};
};

TEST_F(ChooseVariables, ShowsTheRecipesVariablesAsTheSelection) {
    inDialog<FMultiSelectItems>("FMultiSelectItems", [this](FMultiSelectItems& dialog) {
        EXPECT_EQ(dialog.hxMI->selectedItems(), variables);
        EXPECT_EQ(dialog.hxMI->itemFilter(), 256);
        EXPECT_EQ(dialog.owner(), window->share());
        EXPECT_TRUE(addIn.busyFlag);
        EXPECT_FALSE(dialog.cancelled());
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    ASSERT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_FALSE(addIn.busyFlag);
}

TEST_F(ChooseVariables, ShowTheHourglassWhileTheyAreReadAndWhileTheyAreReplaced) {
    using enum forms::Pointer;
    host.record.pointers.clear();
    inDialog<FMultiSelectItems>("FMultiSelectItems", [this](FMultiSelectItems& dialog) {
        EXPECT_EQ(host.record.pointers, (std::vector{hourglass, standard}));
        dialog.cmdOk->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(host.record.pointers, (std::vector{hourglass, standard, hourglass, standard}));
}

TEST_F(ChooseVariables, WithoutVariablesStartsWithNoSelection) {
    show("RCPR" + std::to_string(water));
    inDialog<FMultiSelectItems>("FMultiSelectItems", [](FMultiSelectItems& dialog) {
        EXPECT_FALSE(dialog.hxMI->selectedItems().has_value());
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(ChooseVariables, CancelledRefreshesTheViewAndKeepsTheRow) {
    grid().setRow(2);
    selectRows({0});
    inDialog<FMultiSelectItems>("FMultiSelectItems", [this](FMultiSelectItems& dialog) {
        dialog.hxMI->setSelectedItems(Texts{"Other"});
        addMember(mix, "Late");
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed", "Late"}));
    EXPECT_EQ(grid().row(), 2);
    EXPECT_EQ(storedMembers().size(), 7U);
    expectAtRest();
}

TEST_F(ChooseVariables, ReplacesTheMembersInTheOrderOfTheSelection) {
    choose(Texts{"Pump.Speed", "Valve.Open", "Tank.Level"});
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "1 Pump.Speed 0", "1 Valve.Open 0", "1 Tank.Level 0"}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Valve.Open", "Tank.Level"}));
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(host.record.pointers.back(), forms::Pointer::standard);
    expectAtRest();
}

TEST_F(ChooseVariables, ReplacesMembersOfWhichVariablesCameLast) {
    addMember(mix, "Late");
    choose(Texts{"Late"});
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "1 Late 0"}));
}

TEST_F(ChooseVariables, DeletesTheSubRecipesOfTheRecipeToo) {
    choose(variables);
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "1 Tank.Level 0", "1 Tank.Temp 0", "1 Pump.Speed 0"}));
    show(mixSubRecipes);
    EXPECT_EQ(grid().rowCount(), 0);
}

TEST_F(ChooseVariables, WithAnEmptySelectionLeavesTheRecipeWithoutAnyMember) {
    choose(std::nullopt);
    EXPECT_EQ(storedMembers(), others);
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(ChooseVariables, ClosedByTheFrameCountsAsOk) {
    inDialog<FMultiSelectItems>("FMultiSelectItems",
                                [](FMultiSelectItems& dialog) { dialog.hxMI->setSelectedItems(Texts{"Other"}); });
    click("mnuRecipeMemberNewVariable");
    EXPECT_TRUE(host.record.modals.at(0).closedByFrame);
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "1 Other 0"}));
}

TEST_F(ChooseVariables, StoresManyVariables) {
    const Texts many = named("Area.Value", 300);
    choose(many);
    EXPECT_EQ(shown("VarRecipe"), many);
    EXPECT_EQ(storedMembers().size(), 301U);
}

TEST_F(ChooseVariables, WritesAPendingEditFirst) {
    type(0, "Tank.Pressure");
    inDialog<FMultiSelectItems>("FMultiSelectItems", [](FMultiSelectItems& dialog) {
        EXPECT_EQ(dialog.hxMI->selectedItems()->at(0), "Tank.Pressure");
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(ChooseVariables, EndsWhenAPendingEditCannotBeWritten) {
    type(0, "Tank.Pressure");
    faults.arm(1, support::FaultPlan::Kind::update);
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_TRUE(grid().dataChanged()) << "the edit waits to be corrected";
}

TEST_F(ChooseVariables, StartsFromWhatIsStoredNow) {
    database.table("TrcpRecipeMember").remove(1);
    addMember(mix, "Late");
    inDialog<FMultiSelectItems>("FMultiSelectItems", [](FMultiSelectItems& dialog) {
        EXPECT_EQ(dialog.hxMI->selectedItems(), (Texts{"Tank.Temp", "Pump.Speed", "Late"}));
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(ChooseVariables, OpensTheMembersAgainWhenTheyAreClosed) {
    members().close();
    inDialog<FMultiSelectItems>("FMultiSelectItems", [this](FMultiSelectItems& dialog) {
        EXPECT_EQ(dialog.hxMI->selectedItems(), variables);
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(ChooseVariables, ThatCannotBeStoredLeaveTheOldOnes) {
    const Texts before = storedMembers();
    faults.arm(2, support::FaultPlan::Kind::insert);
    choose(Texts{"A", "B", "C"});
    EXPECT_TRUE(faults.fired());
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeMember");
    EXPECT_EQ(storedMembers(), before);
    EXPECT_EQ(shown("VarRecipe"), variables);
    expectAtRest();
}

TEST_F(ChooseVariables, ThatCannotBeStoredStayChosenForAnotherTry) {
    const Texts before = storedMembers();
    faults.arm(2, support::FaultPlan::Kind::insert);
    inDialog<FMultiSelectItems>("FMultiSelectItems", [&](FMultiSelectItems& dialog) {
        dialog.hxMI->setSelectedItems(Texts{"A", "B", "C"});
        dialog.cmdOk->click();
        EXPECT_TRUE(dialog.visible());
        EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
        EXPECT_EQ(dialog.hxMI->selectedItems(), (Texts{"A", "B", "C"}));
        EXPECT_EQ(storedMembers(), before);
        dialog.cmdOk->click();
        EXPECT_FALSE(dialog.visible());
    });
    click("mnuRecipeMemberNewVariable");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"A", "B", "C"}));
    expectAtRest();
}

TEST_F(ChooseVariables, OfWhichOneIsTooLongLeaveTheOldOnes) {
    const Texts before = storedMembers();
    choose(Texts{"A", std::string(300, 'x')});
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("VarRecipe"), std::string::npos);
    EXPECT_EQ(storedMembers(), before);
    expectAtRest();
}

TEST_F(ChooseVariables, AreAllOldOrAllNewWhateverFails) {
    const Texts before = storedMembers();
    const Texts after = {"2 Sugar.Mass 0", "1 A 0", "1 B 0"};
    inDialog<FMultiSelectItems>("FMultiSelectItems", [](FMultiSelectItems& dialog) {
        dialog.hxMI->setSelectedItems(Texts{"A", "B"});
        dialog.cmdOk->click();
    });
    withEachFault([this] { show(mixKey); }, [this] { click("mnuRecipeMemberNewVariable"); },
                  [&] {
                      EXPECT_TRUE(storedMembers() == before || storedMembers() == after);
                      const bool replaced = storedMembers() == after;
                      window->refreshMembers();
                      EXPECT_EQ(shown("VarRecipe"), replaced ? (Texts{"A", "B"}) : variables);
                  });
    EXPECT_EQ(storedMembers(), after);
}

struct ChooseBesideAnother : ChooseVariables {
    /// The user chooses two variables; another changes the members meanwhile.
    void chooseWhile(const std::function<void()>& another) {
        inDialog<FMultiSelectItems>("FMultiSelectItems", [another](FMultiSelectItems& dialog) {
            dialog.hxMI->setSelectedItems(Texts{"A", "B"});
            another();
            dialog.cmdOk->click();
        });
        click("mnuRecipeMemberNewVariable");
    }
    support::MemoryTable& stored() { return database.table("TrcpRecipeMember"); }
    const Texts replaced = {"2 Sugar.Mass 0", "1 A 0", "1 B 0"};
};

TEST_F(ChooseBesideAnother, AsksBeforeMembersAreReplacedThatCameOrWentMeanwhile) {
    chooseWhile([this] {
        stored().remove(1);
        addMember(mix, "Late");
    });
    EXPECT_EQ(messages(),
              (Texts{"Die Elemente des Rezepts wurden inzwischen von jemand anderem geändert.\r\nHinzugekommen: "
                     "Late\r\nEntfernt: Tank.Level\r\nTrotzdem durch die Auswahl ersetzen?"}));
    EXPECT_EQ(host.record.messages[0].style, 260);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp", "Pump.Speed", "Late"}));
    EXPECT_EQ(storedMembers().size(), 6U);
    expectAtRest();
}

TEST_F(ChooseBesideAnother, AsksInEnglish) {
    useLanguage(english);
    show(mixKey);
    chooseWhile([this] { addMember(mix, "Late"); });
    EXPECT_EQ(messages(),
              (Texts{"The members of the recipe were changed by another meanwhile.\r\nAdded: Late\r\nRemoved: "
                     "-\r\nReplace them all the same?"}));
}

TEST_F(ChooseBesideAnother, ReplacesThemWhenTheUserSaysSo) {
    answer(forms::message::Answer::yes);
    chooseWhile([this] { addMember(mix, "Late"); });
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(storedMembers(), replaced);
}

TEST_F(ChooseBesideAnother, AsksAgainWhenTheyChangeWhileTheUserIsAsked) {
    int asked = 0;
    host.script.onMessage = [&](const forms::ShownMessage&) {
        if (++asked == 1) addMember(mix, "Later");
        return forms::message::Answer::yes;
    };
    chooseWhile([this] { addMember(mix, "Late"); });
    ASSERT_EQ(messages().size(), 2U);
    EXPECT_NE(messages()[1].find("Hinzugekommen: Later\r\n"), std::string::npos) << messages()[1];
    EXPECT_EQ(storedMembers(), replaced);
}

TEST_F(ChooseBesideAnother, TellsOfSubRecipesByTheirNames) {
    chooseWhile([this] {
        addMember(mix, "File", syrup);
        addMember(mix, "Gone", 99);
        stored().remove(5);
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("Hinzugekommen: Sirup, Gone\r\nEntfernt: Wasser\r\n"), std::string::npos)
        << messages()[0];
}

TEST_F(ChooseBesideAnother, TellsOfARenamedOneAndOfNoMoreThanAFew) {
    chooseWhile([this] {
        for (int i = 1; i <= 5; ++i) addMember(mix, "Late" + std::to_string(i));
        const std::vector<ado::ColumnValue> values = {{2, Variant("Tank.Theirs")}};
        stored().update(1, values);
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(
        messages()[0].find("Hinzugekommen: Tank.Theirs, Late1, Late2, Late3, Late4, ...\r\nEntfernt: Tank.Level\r\n"),
        std::string::npos)
        << messages()[0];
}

TEST_F(ChooseBesideAnother, TellsOfAllThatCameWhenTheyAreFew) {
    chooseWhile([this] {
        for (int i = 1; i <= 5; ++i) addMember(mix, "Late" + std::to_string(i));
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("Hinzugekommen: Late1, Late2, Late3, Late4, Late5\r\n"), std::string::npos)
        << messages()[0];
}

TEST_F(ChooseBesideAnother, MembersOfOtherRecipesDoNotMatter) {
    chooseWhile([this] { addMember(syrup, "Late"); });
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "2 Late 0", "1 A 0", "1 B 0"}));
}

TEST_F(ChooseBesideAnother, GivesNothingToARecipeThatIsGone) {
    chooseWhile([this] {
        database.table("TrcpRecipe").remove(mix);
        for (const int member : {1, 2, 3, 4, 5}) stored().remove(member);
    });
    EXPECT_EQ(messages(), (Texts{"-2147217885: Das Rezept mit der ID 1 wurde von jemand anderem gelöscht. Nichts wurde "
                                 "gespeichert."}));
    EXPECT_EQ(storedMembers(), others);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    expectAtRest();
}

}  // namespace
}  // namespace hx::editor
