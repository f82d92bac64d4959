// SPDX-License-Identifier: MIT

// Typing into a grid, leaving rows, and errors.
#include "grid_fixture.h"
#include "support/faulty_provider.h"

namespace hx::forms {
namespace {

using automation::Error;
using automation::Null;
using automation::Variant;
using support::errorNumber;

class GridEdit : public GridTest {
  protected:
    /// What the grid reports, as "code".
    std::string errors;
    std::string descriptions;
    void catchErrors() {
        grid.errorEvent.connect([this](GridError& error) {
            errors += std::to_string(error.code) + ";";
            descriptions += error.description;
            error.response = 0;
        });
    }
};

TEST_F(GridEdit, TypedTextWaitsUntilTheRowIsLeft) {
    std::int32_t changed = -1;
    grid.rowChanged.connect([&](std::int32_t row) { changed = row; });
    type(1, "Comment", "Größe");
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(grid.row(), 1);
    EXPECT_TRUE(grid.dataChanged());
    EXPECT_EQ(text(1, "Comment"), "Größe");
    EXPECT_EQ(grid.value(1, col("Comment")), Variant("Größe"));
    EXPECT_EQ(stored("Comment"), "of A;of B;of C;");
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(stored("Comment"), "of A;Größe;of C;");
}

TEST_F(GridEdit, TheSameTextIsNoEdit) {
    type(1, "Comment", "of B");
    type(1, "FilePath", "");
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(recipes->editMode(), ado::adEditNone);
}

TEST_F(GridEdit, EmptyTextInANumberIsNull) {
    type(1, "Options", "");
    EXPECT_EQ(grid.value(1, col("Options")), Variant(Null{}));
    type(1, "Comment", "");
    EXPECT_EQ(grid.value(1, col("Comment")), Variant(""));
}

TEST_F(GridEdit, TextThatDoesNotFitIsReportedAndChangesNothing) {
    catchErrors();
    type(1, "Options", "many");
    EXPECT_EQ(errors, "13;");
    EXPECT_NE(descriptions.find("\"Options\""), std::string::npos) << descriptions;
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(text(1, "Options"), "0");
}

TEST_F(GridEdit, TextForARowThatIsGoneIsReported) {
    catchErrors();
    grid.setRow(1);
    deleteElsewhere("B");
    grid.refetch();
    type(0, "Comment", "x");
    EXPECT_EQ(errors, "");
    grid.cancelUpdate();
    recipes->setBookmark(recipes->bookmarkAt(1));
    grid.setText(1, col("Comment"), "x");
    EXPECT_EQ(errors, "32;");
    EXPECT_FALSE(grid.dataChanged());
}

TEST_F(GridEdit, TextForRowsOpenedForReadingIsReportedAsTheRecordsetSays) {
    auto rows = std::make_shared<ado::Recordset>();
    rows->open("TrcpRecipe", connection, ado::adOpenKeyset, ado::adLockReadOnly);
    grid.setDataSource(rows);
    catchErrors();
    type(1, "Comment", "x");
    EXPECT_EQ(errors, std::to_string(ado::adErrIllegalOperation) + ";");
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(text(1, "Comment"), "of B");
}

TEST_F(GridEdit, ColumnsThatCannotBeWrittenAreNotEditable) {
    EXPECT_TRUE(grid.editable(col("Comment")));
    EXPECT_FALSE(grid.editable(col("ID")));
    grid.column(Variant("Comment")).setLocked(true);
    EXPECT_FALSE(grid.editable(col("Comment")));
    grid.column(Variant("Options")).valueItems().setSource([](const Variant&) { return "?"; });
    EXPECT_FALSE(grid.editable(col("Options")));
    for (const char* field : {"ID", "Comment", "Options"}) {
        EXPECT_EQ(errorNumber([&] { type(0, field, "1"); }), automation::errMemberNotFound) << field;
    }
    grid.setAllowUpdate(false);
    EXPECT_FALSE(grid.editable(col("Name")));
    EXPECT_EQ(errorNumber([&] { type(0, "Name", "Z"); }), automation::errMemberNotFound);
    EXPECT_EQ(errorNumber([&] { grid.setText(0, 99, "Z"); }), automation::errBadIndex);
    EXPECT_EQ(errorNumber([&] { grid.setAllowUpdate(true), grid.setText(7, 1, "Z"); }), automation::errBadIndex);
    EXPECT_EQ(recipes->editMode(), ado::adEditNone);
}

TEST_F(GridEdit, AHandlerDecidesWhetherAnEditedRowIsLeft) {
    bool stay = true;
    int asked = 0;
    grid.leavingRowEvent.connect([&](bool& cancel) {
        ++asked;
        cancel = stay;
    });
    EXPECT_TRUE(grid.setRow(1));
    EXPECT_EQ(asked, 0) << "nothing has been edited";
    type(1, "Comment", "x");
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(text(1, "Comment"), "x");
    stay = false;
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(stored("Comment"), "of A;x;of C;") << "an edit that the handler lets go is written";
}

TEST_F(GridEdit, AHandlerCannotMoveTheGridWhileARowIsLeft) {
    bool inner = true;
    grid.leavingRowEvent.connect([&](bool&) { inner = grid.setRow(0); });
    type(1, "Comment", "x");
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_FALSE(inner);
    EXPECT_EQ(grid.row(), 2);
}

TEST_F(GridEdit, AHandlerMayCloseTheRecordsetWhileARowIsLeft) {
    type(1, "Comment", "x");
    grid.leavingRowEvent.connect([&](bool&) {
        recipes->cancelUpdate();
        recipes->close();
    });
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(grid.row(), -1);
}

TEST_F(GridEdit, AHandlerMayReorderTheRowsWhileARowIsLeft) {
    type(0, "Comment", "x");
    const ado::Bookmark target = recipes->bookmarkAt(2);
    grid.leavingRowEvent.connect([&](bool&) {
        grid.update();
        deleteElsewhere("B");
        recipes->requery();
    });
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(grid.bookmark(), target);
    EXPECT_EQ(grid.row(), 1);
}

TEST_F(GridEdit, ARefusedRowStaysCurrent) {
    catchErrors();
    Counter<> moves(grid.currentCellChanged);
    type(1, "Name", "a");
    (void)moves.take();
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(errors, "6160;");
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(moves.take(), 0);
    EXPECT_EQ(text(1, "Name"), "a") << "the text stays for the user to mend";
    EXPECT_TRUE(grid.dataChanged());
    EXPECT_EQ(stored("Name"), "A;B;C;");
    EXPECT_EQ(connection->errors().back().number(), ado::dbErrDuplicate);
    type(1, "Name", "D");
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(stored("Name"), "A;D;C;");
}

TEST_F(GridEdit, ARefusedRowReturnsToItsStoredValuesWhenTheErrorHandlerSaysSo) {
    grid.errorEvent.connect([&](GridError& error) {
        recipes->cancelUpdate();
        grid.refetchRow();
        error.response = 0;
    });
    type(1, "Name", "a");
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(text(1, "Name"), "B");
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(screen.calls, Names{});
}

TEST_F(GridEdit, AHandlerThatGoesToTheFirstRowIsFollowed) {
    Counter<> moves(grid.currentCellChanged);
    grid.errorEvent.connect([&](GridError& error) {
        EXPECT_EQ(error.code, gridErrStaleRow);
        recipes->cancelUpdate();
        recipes->resync();
        recipes->moveFirst();
        error.response = 0;
    });
    type(1, "Comment", "x");
    deleteElsewhere("B");
    (void)moves.take();
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(moves.take(), 1);
}

TEST_F(GridEdit, WithoutAHandlerAnErrorIsShown) {
    grid.reportError({32, "Gone"});
    EXPECT_EQ(screen.calls, Names{"message 32: Gone | 0 | HXRecipeEditor"});
    Grid alone("tdbRM");
    alone.reportError({32, "Gone"});
}

TEST_F(GridEdit, UpdateTellsRefusedRowsFromStaleOnes) {
    type(1, "Name", "a");
    EXPECT_EQ(errorNumber([&] { grid.update(); }), gridErrRowRefused);
    EXPECT_EQ(text(1, "Name"), "a");
    grid.cancelUpdate();
    type(1, "Comment", "x");
    deleteElsewhere("B");
    EXPECT_EQ(errorNumber([&] { grid.update(); }), gridErrStaleRow);
    EXPECT_TRUE(grid.dataChanged());
    EXPECT_EQ(recipes->editMode(), ado::adEditInProgress);
}

TEST_F(GridEdit, UpdateHandsOnWhatElseTheProviderReports) {
    support::FaultPlan plan;
    support::FaultyProvider faulty(provider, plan);
    auto other = std::make_shared<ado::Connection>(faulty);
    other->open("Data Source=plant.hxs");
    auto rows = std::make_shared<ado::Recordset>();
    rows->open("TrcpRecipe", other);
    grid.setDataSource(rows);
    catchErrors();
    type(1, "Comment", "x");
    plan.arm(1, support::FaultPlan::Kind::update);
    EXPECT_FALSE(grid.setRow(2));
    EXPECT_EQ(errors, std::to_string(ado::dbErrUnspecified) + ";");
    EXPECT_EQ(text(1, "Comment"), "x");
    plan.disarm();
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(stored("Comment"), "of A;x;of C;");
    grid.setDataSource(nullptr);
}

TEST_F(GridEdit, UpdateWritesAlsoAfterTheMarkHasBeenCleared) {
    type(1, "Comment", "x");
    grid.setDataChanged(false);
    EXPECT_EQ(text(1, "Comment"), "x");
    grid.update();
    EXPECT_EQ(stored("Comment"), "of A;x;of C;");
}

TEST_F(GridEdit, CancelUpdateShowsTheStoredValues) {
    type(1, "Comment", "x");
    std::int32_t changed = -1;
    grid.rowChanged.connect([&](std::int32_t row) { changed = row; });
    grid.cancelUpdate();
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(text(1, "Comment"), "of B");
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(stored("Comment"), "of A;of B;of C;");
}

TEST_F(GridEdit, ANewRowIsStoredByUpdate) {
    Counter<> reads(grid.rowsChanged);
    grid.setAddNewMode(true);
    EXPECT_TRUE(grid.addNewMode());
    EXPECT_EQ(grid.row(), -1);
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_FALSE(grid.atBofOrEof());
    grid.setText(-1, col("Name"), "D");
    EXPECT_EQ(grid.text(-1, col("Name")), "D");
    EXPECT_EQ(grid.text(-1, col("Comment")), "");
    EXPECT_TRUE(grid.dataChanged());
    grid.update();
    EXPECT_FALSE(grid.addNewMode());
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(reads.take(), 1);
    EXPECT_EQ(grid.rowCount(), 4);
    EXPECT_EQ(grid.row(), 3);
    EXPECT_EQ(stored("Name"), "A;B;C;D;");
}

TEST_F(GridEdit, ANewRowIsStoredWhenItIsLeft) {
    grid.setAddNewMode(true);
    grid.setText(-1, col("Name"), "D");
    EXPECT_TRUE(grid.setRow(0));
    EXPECT_FALSE(grid.addNewMode());
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(stored("Name"), "A;B;C;D;");
}

TEST_F(GridEdit, ANewRowThatIsRefusedStaysNew) {
    catchErrors();
    grid.setAddNewMode(true);
    grid.setText(-1, col("Name"), "A");
    EXPECT_FALSE(grid.setRow(0));
    EXPECT_EQ(errors, "6160;");
    EXPECT_TRUE(grid.addNewMode());
    EXPECT_EQ(grid.text(-1, col("Name")), "A");
    grid.setAddNewMode(false);
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(recipes->editMode(), ado::adEditNone);
    EXPECT_EQ(stored("Name"), "A;B;C;");
}

TEST_F(GridEdit, AddNewModeBeginsWhenTheCurrentRowCanBeLeft) {
    catchErrors();
    type(1, "Name", "a");
    grid.setAddNewMode(true);
    EXPECT_FALSE(grid.addNewMode());
    EXPECT_EQ(errors, "6160;");
    EXPECT_EQ(text(1, "Name"), "a");
}

TEST_F(GridEdit, TheOpenEditorTellsWhereTheCaretStands) {
    EXPECT_TRUE(grid.caretAtEnd());
    grid.editorReported("Maß", 2);
    EXPECT_TRUE(grid.editorOpen());
    EXPECT_FALSE(grid.caretAtEnd());
    grid.editorReported("Maß", 3);
    EXPECT_TRUE(grid.caretAtEnd());
    grid.editorReported("Maß", 0);
    grid.editorClosed();
    EXPECT_FALSE(grid.editorOpen());
    EXPECT_TRUE(grid.caretAtEnd());
}

TEST_F(GridEdit, SettlingAsksTheViewForAnOpenEditor) {
    ChangeRecorder changes(grid);
    Counter<> asked(grid.settleEvent);
    grid.settle();
    EXPECT_EQ(asked.take(), 1);
    EXPECT_TRUE(changes.take().empty());
}

TEST_F(GridEdit, AFailureOfItsViewIsShownUnlessAHandlerDoes) {
    grid.viewFailed(automation::Error(7, "No disk"));
    EXPECT_EQ(screen.calls, std::vector<std::string>{"message 7: No disk | 0 | " + std::string(message::defaultTitle)});
    screen.calls.clear();
    std::string seen;
    grid.viewErrorEvent.connect([&](GridError& error) {
        seen = std::to_string(error.code) + " " + error.description;
        error.response = 0;
    });
    int others = 0;
    grid.errorEvent.connect([&](GridError&) { ++others; });
    grid.viewFailed(automation::Error(8, "No file"));
    EXPECT_EQ(seen, "8 No file");
    EXPECT_EQ(others, 0);
    EXPECT_EQ(screen.calls, std::vector<std::string>{});
}

TEST_F(GridEdit, ClaimsTheKeysThatItIsGiven) {
    EXPECT_FALSE(grid.claims({key::o, shift::ctrl}));
    grid.claimKeys({{key::o, shift::ctrl}, {key::f9, shift::none}});
    EXPECT_TRUE(grid.claims({key::o, shift::ctrl}));
    EXPECT_TRUE(grid.claims({key::f9, shift::none}));
    EXPECT_FALSE(grid.claims({key::o, shift::none}));
}

TEST_F(GridEdit, AClickOnACellsButtonMakesTheCellCurrentFirst) {
    std::string seen;
    grid.buttonClickEvent.connect([&](std::int32_t column) {
        seen += std::to_string(grid.row()) + "," + std::to_string(grid.col()) + "," + std::to_string(column);
    });
    grid.buttonClick(2, col("Name"));
    EXPECT_EQ(seen, "2,1,1");
    seen.clear();
    catchErrors();
    type(2, "Name", "A");
    grid.buttonClick(0, col("Name"));
    EXPECT_EQ(seen, "") << "the refused row is still current";
    EXPECT_EQ(errorNumber([&] { grid.buttonClick(9, 0); }), automation::errBadIndex);
    EXPECT_EQ(errorNumber([&] { grid.buttonClick(0, 99); }), automation::errBadIndex);
}

}  // namespace
}  // namespace hx::forms
