// SPDX-License-Identifier: MIT
#include "command_window.h"

namespace hx::editor {
namespace {

using automation::Variant;
using forms::message::Answer;

struct DeleteMembers : CommandWindow {
    DeleteMembers() {
        show(mixKey);
        answer(Answer::yes);
    }
    void deleteRows(const Numbers& rows) {
        selectRows(rows);
        click("mnuRecipeMemberDelete");
    }
    static constexpr const char* question = "Wollen Sie wirklich die selektierten Rezeptelemente löschen ?";
};

TEST_F(DeleteMembers, AsksWithNoAsTheDefault) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    grid().setRow(1);
    deleteRows({0, 2});
    ASSERT_EQ(messages(), (Texts{question}));
    const forms::ShownMessage& box = host.record.messages[0];
    EXPECT_EQ(box.style, 260);
    EXPECT_EQ(box.buttons, (std::vector{Answer::yes, Answer::no}));
    EXPECT_EQ(box.defaultButton, Answer::no);
    EXPECT_EQ(box.title, forms::message::defaultTitle);
    EXPECT_TRUE(busy);
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(grid().selectedRows().count(), 2);
    EXPECT_EQ(grid().row(), 1);
    expectAtRest();
}

TEST_F(DeleteMembers, ShowTheHourglassMeanwhile) {
    host.script.onMessage = [this](const forms::ShownMessage&) {
        host.record.pointers.clear();
        return Answer::yes;
    };
    deleteRows({0});
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
}

TEST_F(DeleteMembers, AsksInEnglish) {
    useLanguage(english);
    answer(Answer::no);
    deleteRows({0});
    EXPECT_EQ(messages(), (Texts{"You really want to delete the selected Elements"}));
    EXPECT_EQ(storedMembers(), allMembers);
}

TEST_F(DeleteMembers, AsksNothingWhenTheOptionIsOff) {
    turnQuestionsOff();
    deleteRows({0});
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers().size(), 5U);
}

TEST_F(DeleteMembers, DeletesTheSelectedRowsAndNoOther) {
    deleteRows({2, 0});
    EXPECT_EQ(storedMembers(), (Texts{"1 Tank.Temp 0", "1 File.Syrup 2", "1 File.Water 3", "2 Sugar.Mass 0"}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp"}));
    EXPECT_EQ(grid().selectedRows().count(), 0);
    EXPECT_EQ(messages(), (Texts{question}));
    expectAtRest();
}

TEST_F(DeleteMembers, DeletesSubRecipesOfTheirFolder) {
    show(mixSubRecipes);
    deleteRows({0});
    EXPECT_EQ(shown("ChildID"), (Texts{"Wasser"}));
    EXPECT_EQ(storedMembers().size(), 5U);
    EXPECT_EQ(storedRecipes().size(), 3U);
}

TEST_F(DeleteMembers, KeepsTheCurrentRow) {
    grid().setRow(2);
    deleteRows({0});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Pump.Speed");
}

TEST_F(DeleteMembers, ThenStandsOnTheRowThatFollowed) {
    grid().setRow(0);
    deleteRows({0, 1});
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed"}));
    addMember(mix, "Late");
    addMember(mix, "Later");
    show(mixKey);
    window->refreshMembers();
    grid().setRow(1);
    deleteRows({1});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Later");
}

TEST_F(DeleteMembers, ThenStandsOnTheRowBeforeWhenTheLastIsGone) {
    grid().setRow(2);
    deleteRows({2});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Tank.Temp");
    deleteRows({0, 1});
    EXPECT_EQ(grid().row(), -1);
    EXPECT_EQ(grid().rowCount(), 0);
    expectAtRest();
}

TEST_F(DeleteMembers, ThenStandsOnTheLastRowBeforeThemThatIsLeft) {
    addMember(mix, "Late");
    window->refreshMembers();
    grid().setRow(3);
    deleteRows({2, 3});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Tank.Temp");
}

TEST_F(DeleteMembers, WithoutACurrentRowThenStandsOnTheFirst) {
    selectRows({0});
    members().moveLast();
    members().moveNext();
    ASSERT_EQ(grid().row(), -1);
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(messages(), (Texts{question}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp", "Pump.Speed"}));
    EXPECT_EQ(grid().row(), 0);
}

TEST_F(DeleteMembers, ByNumberDoesNothingForANodeOfAnother) {
    selectRows({0});
    window->setNodeKey("VARS1");
    window->commands().mnuRecipeMember(2);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), allMembers);
}

TEST_F(DeleteMembers, KeepsTheOrderOfTheGrid) {
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Tank.Level", "Tank.Temp"}));
    deleteRows({1});
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Tank.Temp"}));
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
}

TEST_F(DeleteMembers, WritesAPendingEditFirst) {
    type(1, "Tank.Pressure");
    deleteRows({0});
    EXPECT_EQ(storedMembers()[0], "1 Tank.Pressure 0");
}

TEST_F(DeleteMembers, DropsAnEditThatTheDatabaseRefuses) {
    type(1, "Tank.Pressure");
    refuseNextUpdate(ado::dbErrDuplicate);
    turnQuestionsOff();
    host.script.onMessage = nullptr;
    deleteRows({0});
    EXPECT_EQ(storedMembers()[0], "1 Tank.Temp 0");
    EXPECT_EQ(messages(), (Texts{"-2147217887: Die Eingabe \"Tank.Pressure\" konnte nicht gespeichert werden und wurde "
                                 "verworfen. Refused."}));
    expectNoOldDuplicate();
}

TEST_F(DeleteMembers, PassesOverAMemberThatIsGoneAlready) {
    selectRows({0, 1});
    database.table("TrcpRecipeMember").remove(1);
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed"}));
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteMembers, ThatAreAllGoneAlreadyIsNoError) {
    selectRows({0, 1, 2});
    for (const int member : {1, 2, 3}) database.table("TrcpRecipeMember").remove(member);
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteMembers, WithoutASelectionBeepsAndAsksNothing) {
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(host.record.beeps, 1);
    window->commands().mnuRecipeMember(2);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), allMembers);
}

TEST_F(DeleteMembers, DisablesTheToolAfterwards) {
    deleteRows({0});
    EXPECT_FALSE(window->tbrfunc->button(Variant("Delete")).toolTipText().empty());
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(grid().rowCount(), 2);
}

TEST_F(DeleteMembers, WhatWasDeletedBeforeAnErrorStaysDeleted) {
    turnQuestionsOff();
    faults.arm(2, support::FaultPlan::Kind::remove);
    deleteRows({0, 1, 2});
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeMember");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp", "Pump.Speed"}));
    EXPECT_EQ(storedMembers().size(), 5U);
    expectAtRest();
}

TEST_F(DeleteMembers, ThatCannotBeCommittedIsTakenBack) {
    turnQuestionsOff();
    faults.arm(1, support::FaultPlan::Kind::commit);
    deleteRows({0, 1});
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    expectAtRest();
}

TEST_F(DeleteMembers, TheGridShowsWhatIsStoredWhateverFails) {
    withEachFault(
        [this] {
            show(mixKey);
            selectRows({0, 2});
        },
        [this] { click("mnuRecipeMemberDelete"); },
        [this] {
            window->refreshMembers();
            Texts stored;
            for (const std::string& row : storedMembers()) {
                if (row.starts_with("1 ") && row.ends_with(" 0")) stored.push_back(row.substr(2, row.size() - 4));
            }
            EXPECT_EQ(shown("VarRecipe"), stored);
        });
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp"}));
}

TEST_F(DeleteMembers, WithoutADatabaseIsReported) {
    selectRows({0});
    window->MenuSwitcher(mixKey, false);
    window->setDataEnvironment(nullptr);
    window->abr->click("mnuRecipeMemberDelete");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

}  // namespace
}  // namespace hx::editor
