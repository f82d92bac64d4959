// SPDX-License-Identifier: MIT
#include <utility>

#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct GridError : EditorWindow {
    GridError() {
        open();
        show(mixKey);
        host.script.onMessage = [this](const forms::ShownMessage& message) {
            busy.push_back(addIn.busyFlag);
            return message.defaultButton;
        };
    }
    /// As another does.
    void storeVariable(std::int32_t member, const std::string& variable) {
        const std::vector<ado::ColumnValue> values = {{2, Variant(variable)}};
        database.table("TrcpRecipeMember").update(member, values);
    }
    void typeDuplicate() {
        type(1, "Tank.Level");
        refuseNextUpdate(ado::dbErrDuplicate, "Duplicate value");
    }
    std::vector<bool> busy;
};

TEST_F(GridError, LeavingAnEditedRowWritesIt) {
    type(1, "Tank.Pressure");
    EXPECT_TRUE(grid().setRow(0));
    EXPECT_EQ(storedVariable(2), "Tank.Pressure");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(GridError, ADuplicateIsRefusedAndTheRowShowsItsStoredValuesAgain) {
    typeDuplicate();
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(messages(), (Texts{"Doppelter Name"}));
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
    EXPECT_EQ(host.record.messages[0].title, forms::message::defaultTitle);
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_FALSE(grid().dataChanged());
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(GridError, ARowWhoseDuplicateIsRefusedIsReadAnewAsAnotherHasLeftItMeanwhile) {
    typeDuplicate();
    storeVariable(2, "Tank.Theirs");
    grid().setRow(0);
    EXPECT_EQ(shown("VarRecipe")[1], "Tank.Theirs");
}

TEST_F(GridError, WhatTheUserIsToldOfIsDroppedAlreadyAndReadAnewAfterwards) {
    for (const std::int32_t number : {ado::dbErrDuplicate, ado::dbErrRowChanged}) {
        const std::string theirs = "Tank.Theirs" + std::to_string(number);
        host.record.beeps = 0;
        host.script.onMessage = [&](const forms::ShownMessage& message) {
            EXPECT_EQ(host.record.beeps, 1);
            EXPECT_FALSE(grid().dataChanged());
            EXPECT_NE(shown("VarRecipe")[1], "Tank.Mine");
            storeVariable(2, theirs);
            return message.defaultButton;
        };
        type(1, "Tank.Mine");
        refuseNextUpdate(number, "Refused.");
        grid().setRow(0);
        EXPECT_EQ(shown("VarRecipe")[1], theirs);
        EXPECT_EQ(members().editMode(), ado::adEditNone);
    }
    EXPECT_EQ(messages().size(), 2U);
}

TEST_F(GridError, IsNotToldAgainWithTheNext) {
    typeDuplicate();
    grid().setRow(0);
    grid().reportError({forms::gridErrBadValue, "Not a number"});
    EXPECT_EQ(messages().size(), 1U);
}

/// Boxes that cannot be shown: the first of them.
struct FailingBox : GridError {
    FailingBox() {
        host.script.onMessage = [this](const forms::ShownMessage& message) {
            if (std::exchange(fails, false)) throw automation::Error(automation::errFail, "No box.");
            return message.defaultButton;
        };
    }
    [[nodiscard]] Texts titles() const {
        Texts all;
        for (const auto& message : host.record.messages) all.push_back(message.title);
        return all;
    }
    bool fails = true;
};

TEST_F(FailingBox, OfARefusalIsToldAndTheGridSaysNothingItself) {
    typeDuplicate();
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(titles().back(), "tdbRM_Error");
    EXPECT_EQ(messages().back(), "-2147467259: No box.");
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(FailingBox, OfTheGridKeepsTheRowAndLaterErrorsAreHeard) {
    type(1, "Tank.Pressure");
    faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(titles().back(), "tdbRM_BeforeUpdate");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
    grid().reportError({forms::gridErrBadValue, "Not a number"});
    EXPECT_EQ(host.record.beeps, 1);
}

TEST_F(GridError, AConflictInAnotherTableIsNotTheRows) {
    data->rsRecipes->open();
    data->rsRecipes->field("Comment").setValue(Variant("Mine"));
    refuseNextUpdate(ado::dbErrRowChanged);
    EXPECT_THROW(data->rsRecipes->update(), automation::Error);
    ASSERT_FALSE(data->CnnRecipes->errors().empty());
    grid().reportError({forms::gridErrBadValue, "Not a number"});
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(GridError, TheBusyFlagIsSetOnlyWhileTheMessageIsShown) {
    typeDuplicate();
    grid().setRow(0);
    EXPECT_EQ(busy, (std::vector<bool>{true}));
    EXPECT_FALSE(addIn.busyFlag);
}

TEST_F(GridError, TheRowCanBeLeftAfterTheRefusal) {
    typeDuplicate();
    grid().setRow(0);
    EXPECT_TRUE(grid().setRow(0));
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(GridError, EachDuplicateIsReportedOnce) {
    typeDuplicate();
    grid().setRow(0);
    typeDuplicate();
    grid().setRow(0);
    EXPECT_EQ(messages(), (Texts{"Doppelter Name", "Doppelter Name"}));
}

TEST_F(GridError, TheGridShowsNoMessageOfItsOwn) {
    forms::GridError error{forms::gridErrBadValue, "Not a number"};
    grid().errorEvent.raise(error);
    EXPECT_EQ(error.response, 0);
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(GridError, AStaleRowShowsTheNotFoundTextAndResetsTheGrid) {
    grid().setRow(1);
    type(1, "Tank.Pressure");
    database.table("TrcpRecipeMember").remove(2);
    std::vector<ado::EditMode> modes;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy.push_back(addIn.busyFlag);
        modes.push_back(members().editMode());
        return message.defaultButton;
    };
    std::vector<std::int32_t> counts;
    const auto view = grid().rowsChanged.subscribe([&] { counts.push_back(grid().rowCount()); });
    EXPECT_FALSE(grid().setRow(2));
    EXPECT_EQ(modes, (std::vector{ado::adEditInProgress, ado::adEditNone}));
    EXPECT_EQ(counts, std::vector<std::int32_t>{2});
    EXPECT_EQ(messages(), (Texts{"Resource 407 not found",
                                 "-2147217885: Die Zeile wurde von jemand anderem gelöscht. Nichts davon wurde "
                                 "gespeichert:\r\nVariable: \"Tank.Pressure\""}));
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_EQ(members().absolutePosition(), 1);
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Pump.Speed"}));
    EXPECT_EQ(busy, (std::vector<bool>{true, true}));
}

TEST_F(GridError, ACellThatAnotherHasChangedShowsWhatIsStoredNow) {
    type(1, "Tank.Pressure");
    storeVariable(2, "Tank.Theirs");
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(messages(), (Texts{"-2147217864: Die Zeile wurde von jemand anderem geändert. Nichts davon wurde "
                                 "gespeichert:\r\nVariable: \"Tank.Pressure\"; gespeichert ist jetzt "
                                 "\"Tank.Theirs\""}));
    EXPECT_EQ(host.record.messages[0].title, "tdbRM_Error");
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(busy, (std::vector<bool>{true}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Theirs", "Pump.Speed"}));
    EXPECT_EQ(storedVariable(2), "Tank.Theirs");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_FALSE(grid().dataChanged());
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_TRUE(grid().setRow(0)) << "the row can be left";
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(GridError, AConflictIsToldInEnglishToo) {
    useLanguage(english);
    show(mixKey);
    type(1, "Tank.Pressure");
    storeVariable(2, "Tank.Theirs");
    grid().setRow(0);
    EXPECT_EQ(messages(),
              (Texts{"-2147217864: The row was changed by another. Nothing of this was stored:\r\nVariable: "
                     "\"Tank.Pressure\"; stored is now \"Tank.Theirs\""}));
}

TEST_F(GridError, ARowIsStoredWhenAnotherHasChangedAnotherRow) {
    type(1, "Tank.Pressure");
    storeVariable(3, "Pump.Theirs");
    EXPECT_TRUE(grid().setRow(0));
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedVariable(2), "Tank.Pressure");
}

TEST_F(GridError, AnErrorEventOfCodeThirtyTwoResetsTheRecordsetToItsFirstRow) {
    grid().setRow(2);
    selectRows({1});
    storeVariable(2, "Tank.Theirs");
    grid().reportError({forms::gridErrStaleRow, "The row is gone"});
    EXPECT_EQ(messages(), (Texts{"Resource 407 not found"}));
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(grid().selectedRows().count(), 0);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Theirs", "Pump.Speed"}));
    EXPECT_EQ(busy, (std::vector<bool>{true}));
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
}

TEST_F(GridError, AnErrorEventOnAnEmptyGridStandsNowhere) {
    show("RCPE");
    grid().reportError({forms::gridErrStaleRow, "The row is gone"});
    EXPECT_EQ(messages(), (Texts{"Resource 407 not found"}));
    EXPECT_EQ(grid().row(), -1);
}

TEST_F(GridError, AStaleRowOfAGridWithoutRowsIsOnlyTold) {
    members().close();
    grid().reportError({forms::gridErrStaleRow, "The row is gone"});
    window->setDataEnvironment(nullptr);
    grid().reportError({forms::gridErrStaleRow, "The row is gone"});
    EXPECT_EQ(messages(), (Texts{"Resource 407 not found", "Resource 407 not found"}));
}

TEST_F(GridError, AnyOtherFailureIsShownByTheGridAndKeepsTheEdit) {
    type(1, "Tank.Pressure");
    faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, forms::message::defaultTitle);
    EXPECT_EQ(host.record.beeps, 0);
    EXPECT_EQ(busy, (std::vector<bool>{true}));
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[1], "Tank.Pressure");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_TRUE(grid().setRow(0)) << "the disk can be written again";
    EXPECT_EQ(storedVariable(2), "Tank.Pressure");
}

TEST_F(GridError, ARefusalThatIsNoDuplicateNamesItsReasonAndKeepsTheEdit) {
    type(1, "Tank.Pressure");
    refuseNextUpdate(ado::dbErrIntegrity, "The name is too long.");
    EXPECT_FALSE(grid().setRow(0));
    EXPECT_EQ(messages(), (Texts{"-2147217873: The name is too long."}));
    EXPECT_EQ(host.record.messages[0].title, "tdbRM_Error");
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[1], "Tank.Pressure");
}

TEST_F(GridError, AnEarlierDuplicateOfAnotherTableIsNotTheRows) {
    faults.arm(1, support::FaultPlan::Kind::insert, automation::Error(ado::dbErrDuplicate, "Duplicate recipe"));
    data->rsRecipes->open();
    const std::vector<std::pair<std::string, Variant>> values = {{"Name", Variant("Mix")}};
    EXPECT_THROW(data->rsRecipes->addNew(values), automation::Error);
    data->rsRecipes->cancelUpdate();
    type(1, "Tank.Pressure");
    refuseNextUpdate(ado::dbErrIntegrity, "The name is too long.");
    grid().setRow(0);
    EXPECT_EQ(messages(), (Texts{"-2147217873: The name is too long."}));
}

TEST_F(GridError, WithoutADatabaseOnlyBeeps) {
    window->setDataEnvironment(nullptr);
    grid().reportError({forms::gridErrBadValue, "Not a number"});
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(messages(), Texts{});
}

}  // namespace
}  // namespace hx::editor
