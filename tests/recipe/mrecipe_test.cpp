// SPDX-License-Identifier: MIT
#include <limits>

#include "mrecipe_dialog.h"

namespace hx::recipe {
namespace {

using automation::Error;
using automation::Null;
using automation::Variant;
using dialogs::FRecipe;
using forms::CheckState;

TEST_F(MRecipe, ANormFactorOfZeroOpensWithAbsoluteSelected) {
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::absolute]->value());
        EXPECT_FALSE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "0");
        EXPECT_FALSE(dialog.txtStandardValue->enabled());
    });
}

TEST_F(MRecipe, ANormFactorOfAHalfOpensWithRelativeSelected) {
    store(StandardValue, 0.5);
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_FALSE(dialog.optRecipeAbsrel[FRecipe::absolute]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "0.5");
        EXPECT_TRUE(dialog.txtStandardValue->enabled());
    });
}

TEST_F(MRecipe, AMissingNormFactorOpensWithRelativeSelectedAndNoText) {
    store(StandardValue, Null{});
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "");
    });
}

struct MRecipeWithComma : MRecipe {
    MRecipeWithComma() : MRecipe({.decimalPoint = ","}) {}
};

TEST_F(MRecipeWithComma, TheNormFactorIsShownWithAPoint) {
    store(StandardValue, 1.5);
    lookAt([](FRecipe& dialog) { EXPECT_EQ(dialog.txtStandardValue->text(), "1.5"); });
}

TEST_F(MRecipe, ATypedCommaIsADecimalPoint) {
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        dialog.optRecipeAbsrel[FRecipe::relative]->click();
        dialog.txtStandardValue->setText("1,25");
    }));
    EXPECT_EQ(stored(StandardValue), Variant(1.25));
}

TEST_F(MRecipe, ANormFactorThatIsNotTouchedStaysToTheLastDigit) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const Variant& factor : {Variant(0.3333333333333333), Variant(infinity), Variant(Null{})}) {
        store(StandardValue, factor);
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("neu"); }));
        EXPECT_EQ(stored(StandardValue), factor);
    }
}

TEST_F(MRecipe, ANormFactorThatIsNoNumberIsItsLeadingNumber) {
    for (const auto& [text, number] : {std::pair("12abc", 12.0), std::pair("abc", 0.0)}) {
        editAndConfirm([text = text](FRecipe& dialog) { dialog.txtStandardValue->setText(text); });
        EXPECT_EQ(stored(StandardValue), Variant(number)) << text;
    }
}

TEST_F(MRecipe, CancellingLeavesEveryColumnUnchanged) {
    store(VarSave, "Tank.Save");
    const std::vector<Variant> before = storedRow();
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Kaffee");
        dialog.txtVarSave->setText("");
        dialog.chkEnabled->click();
        dialog.cmdCancel->click();
    });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(MRecipe, ClosingByTheFrameCancels) {
    const std::vector<Variant> before = storedRow();
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) { dialog.txtName->setText("Kaffee"); });
    EXPECT_FALSE(edit());
    EXPECT_EQ(storedRow(), before);
    EXPECT_TRUE(host.record.modals.at(0).closedByFrame);
}

TEST_F(MRecipe, OptionTwoOpensWithSaveThroughAloneAndIsWrittenBackAsTwo) {
    for (const std::int32_t options : {2, 6}) {  // 4 means nothing: that it goes shows that the row is written
        store(Options, options);
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
            EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::unchecked);
            EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::checked);
        }));
        EXPECT_EQ(stored(Options), Variant(2));
    }
}

TEST_F(MRecipe, OptionThreeChecksBothBoxes) {
    store(Options, 3);
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::checked);
        EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::checked);
    }));
    EXPECT_EQ(stored(Options), Variant(3));
}

TEST_F(MRecipe, AnOptionWithoutMeaningChecksNeitherBoxAndIsWrittenBackAsZero) {
    store(Options, 4);
    editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::unchecked);
        EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::unchecked);
    });
    EXPECT_EQ(stored(Options), Variant(0));
}

TEST_F(MRecipe, AGreyedBoxCountsAsAnOption) {
    editAndConfirm([](FRecipe& dialog) { dialog.chkWriteThru->setValue(CheckState::greyed); });
    EXPECT_EQ(stored(Options), Variant(1));
}

TEST_F(MRecipe, ANullFilePathOpensEmptyAndIsStoredAsAnEmptyString) {
    store(FilePath, Null{});
    editAndConfirm([](FRecipe& dialog) { EXPECT_EQ(dialog.cboFilePath->text(), ""); });
    EXPECT_EQ(stored(FilePath), Variant(""));
}

TEST_F(MRecipe, NullTextsOpenEmpty) {
    for (const Column column : {VarRecipeName, Comment, VarSetValue}) store(column, Null{});
    lookAt([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtRecipeName->text(), "");
        EXPECT_EQ(dialog.txtComment->text(), "");
        EXPECT_EQ(dialog.txtVarSetValue->text(), "");
    });
}

TEST_F(MRecipe, ARelativeRecipeKeepsItsFactorVariableAndAnAbsoluteOneItsOwn) {
    for (const double factor : {0.0, 2.0}) {
        store(StandardValue, factor);
        store(VarSetValue, "Factor");
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) { EXPECT_EQ(dialog.txtVarSetValue->text(), "Factor"); }));
        EXPECT_EQ(stored(VarSetValue), Variant("Factor"));
        EXPECT_EQ(stored(StandardValue), Variant(factor));
    }
}

TEST_F(MRecipe, TheDialogBelongsToTheEditorWindow) {
    lookAt([this](FRecipe& dialog) { EXPECT_EQ(dialog.owner(), window->share()); });
    EXPECT_EQ(host.record.modals.at(0).owner, window->handle());
    EXPECT_NE(window->handle(), 0);
}

TEST_F(MRecipe, TheOtherRecipesStayAsTheyAre) {
    editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("Neu"); });
    EXPECT_EQ(DialogTest::stored("TrcpRecipe", id - 1, Comment), Variant(""));
    EXPECT_EQ(DialogTest::stored("TrcpRecipe", id + 1, Comment), Variant(""));
    EXPECT_EQ(stored(ID), Variant(id));
}

TEST_F(MRecipe, AColumnWithoutAControlIsNeitherReadNorWritten) {
    using support::MemoryColumn;
    plant.database = support::MemoryDatabase();
    plant.database.addTable(support::MemoryTable("TrcpRecipe", {MemoryColumn{{"ID", ado::adInteger, 4, true, false}, 0},
                                                                MemoryColumn{{"HostData", ado::adVarWChar, 20}, "host"},
                                                                MemoryColumn{{"name", ado::adVarWChar, 20}, ""}}));
    id = plant.addRecipe("theirs");
    store(static_cast<Column>(2), "Tee");
    editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtName->text(), "Tee");
        dialog.txtName->setText("Kaffee");
    });
    EXPECT_EQ(storedRow(), (std::vector<Variant>{id, "theirs", "Kaffee"}));
}

TEST_F(MRecipe, ARowThatCannotBeReadIsNotEdited) {
    OpenAndMoveFirst(recipes);
    EXPECT_EQ(recipes.recordCount(), 3);
    plant.faults.arm(1, support::FaultPlan::Kind::read);
    EXPECT_FALSE(EditRecipe(recipes, *window));
    expectMessage("Initialisierung Rezept-Dialog fehlgegangen");
    EXPECT_TRUE(host.record.modals.empty());
}

TEST_F(MRecipe, WithoutARowNothingIsEdited) {
    recipes.open();
    recipes.moveLast();
    recipes.moveNext();
    EXPECT_FALSE(EditRecipe(recipes, *window));
    expectMessage("Initialisierung Rezept-Dialog fehlgegangen");
}

TEST_F(MRecipe, ValuesThatDoNotFitLeaveTheRowAsItIsStored) {
    const std::vector<Variant> before = storedRow();
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        dialog.txtName->setText("Kaffee");
        dialog.txtComment->setText(std::string(300, 'x'));
    }));
    expectMessage("Zurückschreiben von Rezept-Dialog fehlgegangen");
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
    EXPECT_EQ(recipes.field("Name").value(), Variant("Tee"));
}

TEST_F(MRecipe, ARowThatCouldNotBeWrittenBackIsReadAnewAsAnotherHasLeftItMeanwhile) {
    editAndConfirm([this](FRecipe& dialog) {
        EXPECT_EQ(recipes.field("Comment").value(), Variant(""));
        store(Comment, "Changed by another");
        dialog.txtVarLoad->setText(std::string(300, 'x'));
    });
    expectMessage("Zurückschreiben von Rezept-Dialog fehlgegangen");
    EXPECT_EQ(recipes.field("Comment").value(), Variant("Changed by another"));
}

TEST_F(MRecipe, WhatTheDialogHasStoredIsReportedAsEditedAndADialogThatIsKeptStoresNoMore) {
    std::shared_ptr<FRecipe> kept;
    inDialog<FRecipe>("FRecipe", [&](FRecipe& dialog) {
        kept = std::dynamic_pointer_cast<FRecipe>(dialog.share());
        dialog.txtComment->setText("mine");
        dialog.cmdOk->click();
    });
    OpenAndMoveFirst(recipes);
    recipes.find("ID=" + std::to_string(id));
    EXPECT_TRUE(EditRecipe(recipes, *window, [](const Error&) { FAIL() << "nothing is refused"; }));
    EXPECT_EQ(stored(Comment), Variant("mine"));
    ASSERT_NE(kept, nullptr);
    kept->txtComment->setText("later");
    kept->cmdOk->click();
    EXPECT_EQ(stored(Comment), Variant("mine"));
}

TEST_F(MRecipe, ADuplicateNameReachesTheCallerAndLeavesTheRowAsItIsStored) {
    const std::vector<Variant> before = storedRow();
    try {
        editAndConfirm([](FRecipe& dialog) {
            dialog.txtName->setText("COLA");
            dialog.txtComment->setText("Neu");
        });
        FAIL() << "the name exists already";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), ado::dbErrDuplicate);
    }
    EXPECT_EQ(messages(), std::vector<std::string>{});
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(MRecipe, ARowThatCannotBeStoredReachesTheCaller) {
    const std::vector<Variant> before = storedRow();
    plant.faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_THROW(editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("Neu"); }), Error);
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

}  // namespace
}  // namespace hx::recipe
