// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct VerifyAdds : EditorWindow {
    VerifyAdds() {
        open();
        show(mixKey);
    }
    void startNewMember(const std::string& name) {
        grid().setAddNewMode(true);
        members().field("ParentID").setValue(mix);
        members().field("ChildID").setValue(0);
        grid().setText(-1, columnNumber("VarRecipe"), name);
    }
};

TEST_F(VerifyAdds, WritesAPendingEdit) {
    type(1, "Tank.Pressure");
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(2), "Tank.Pressure");
    EXPECT_FALSE(grid().dataChanged());
}

TEST_F(VerifyAdds, WritesWhatIsBeingTyped) {
    const auto editor = grid().settleEvent.subscribe([this] { type(0, "Tank.Pressure"); });
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(VerifyAdds, WritesAPendingEditOfASubRecipe) {
    show(mixSubRecipes);
    type(0, "File.Other");
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(4), "File.Other");
}

TEST_F(VerifyAdds, DropsAnEditThatTheDatabaseRefusesWithoutAWord) {
    type(1, "Tank.Level");
    refuseNextUpdate(ado::dbErrDuplicate);
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
    EXPECT_EQ(shown("VarRecipe")[1], "Tank.Temp");
    EXPECT_FALSE(grid().dataChanged());
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(VerifyAdds, WritesANewRow) {
    startNewMember("Pump.State");
    window->VerifyAdds();
    EXPECT_EQ(memberCount(), 7U);
    EXPECT_EQ(storedVariable(7), "Pump.State");
    EXPECT_FALSE(grid().addNewMode());
}

TEST_F(VerifyAdds, DropsANewRowThatTheDatabaseRefuses) {
    startNewMember("Pump.State");
    faults.arm(1, support::FaultPlan::Kind::insert);
    window->VerifyAdds();
    EXPECT_TRUE(faults.fired());
    EXPECT_EQ(memberCount(), 6U);
    EXPECT_FALSE(grid().addNewMode());
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(VerifyAdds, DoesNothingForOtherNodes) {
    for (const char* key : {"RCPE0", "RCPE", "VARS1", ""}) {
        window->setNodeKey(key);
        type(1, std::string("Tank.Pressure") + key);
        window->VerifyAdds();
        EXPECT_TRUE(grid().dataChanged()) << key;
        EXPECT_EQ(storedVariable(2), "Tank.Temp") << key;
    }
}

TEST_F(VerifyAdds, DoesNothingWithoutAnEdit) {
    faults.arm(1, support::FaultPlan::Kind::update);
    window->VerifyAdds();
    EXPECT_FALSE(faults.fired());
}

TEST_F(VerifyAdds, BeforeTheRowsGoAwayTheUserIsToldWhatWasDroppedAndWhy) {
    type(1, "Tank.Level");
    refuseNextUpdate(ado::dbErrUnspecified, "Die Datei ist gesperrt.");
    window->finishOrDropEdit();
    EXPECT_EQ(messages(), (Texts{"-2147467259: Die Eingabe \"Tank.Level\" konnte nicht gespeichert werden und wurde "
                                 "verworfen. Die Datei ist gesperrt."}));
    EXPECT_EQ(host.record.messages[0].title, "VerifyAdds");
    EXPECT_EQ(members().editMode(), ado::adEditNone);
    EXPECT_FALSE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[1], "Tank.Temp");
    window->finishOrDropEdit();
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(VerifyAdds, LeavesAGridWithoutAnEditAlone) {
    int changes = 0;
    const auto watch = grid().rowChanged.subscribe([&](std::int32_t) { ++changes; });
    EXPECT_TRUE(window->finishEdit());
    window->VerifyAdds();
    window->finishOrDropEdit();
    EXPECT_EQ(changes, 0);
}

TEST_F(VerifyAdds, WritesANewRowThatTheViewHasNotMarked) {
    startNewMember("Pump.State");
    grid().setDataChanged(false);
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(7), "Pump.State");
    EXPECT_FALSE(grid().addNewMode());
}

TEST_F(VerifyAdds, NamesADuplicateByTheNumberOfTheDatabaseAndInEnglishToo) {
    useLanguage(english);
    type(1, "Tank.Level");
    refuseNextUpdate(ado::dbErrDuplicate, "It has it already.");
    window->finishOrDropEdit();
    EXPECT_EQ(messages(), (Texts{"-2147217887: The entry \"Tank.Level\" could not be stored and was dropped. It has it "
                                 "already."}));
}

TEST_F(VerifyAdds, NamesANewRowThatWasDropped) {
    startNewMember("Pump.State");
    faults.arm(1, support::FaultPlan::Kind::insert);
    window->finishOrDropEdit();
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("\"Pump.State\""), std::string::npos) << messages()[0];
    EXPECT_FALSE(grid().addNewMode());
}

TEST_F(VerifyAdds, NamesATextThatTheViewCouldNotHandOver) {
    data->rsRecipes->open();
    data->rsRecipes->field("Comment").setValue(Variant("Mine"));
    refuseNextUpdate(ado::dbErrIntegrity, "Of another table.");
    EXPECT_THROW(data->rsRecipes->update(), automation::Error);
    grid().editorReported("Half.Typed", 4);
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    window->finishOrDropEdit();
    EXPECT_EQ(messages(), (Texts{"-2147467259: Die Eingabe \"Half.Typed\" konnte nicht gespeichert werden und wurde "
                                 "verworfen. "}));
    EXPECT_TRUE(busy);
}

TEST_F(VerifyAdds, TellsNothingOfAnEditThatIsStored) {
    type(1, "Tank.Pressure");
    window->finishOrDropEdit();
    EXPECT_EQ(storedVariable(2), "Tank.Pressure");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(VerifyAdds, LeavesNoDuplicateForTheNextErrorOfTheGrid) {
    type(1, "Tank.Level");
    refuseNextUpdate(ado::dbErrDuplicate);
    window->VerifyAdds();
    grid().reportError({forms::gridErrBadValue, "Not a number"});
    EXPECT_EQ(messages(), Texts{});
}

}  // namespace
}  // namespace hx::editor
