// SPDX-License-Identifier: MIT
#include "automation/text.h"
#include "mrecipe_dialog.h"
#include "recipe/conflict.h"

namespace hx::recipe {
namespace {

using automation::Error;
using automation::Variant;
using dialogs::FRecipe;

struct MRecipeBesideAnother : MRecipe {
    /// Edits while another stores these values; the user then makes his change and confirms.
    void editWhileTheyStore(const std::vector<std::pair<Column, Variant>>& theirs,
                            const std::function<void(FRecipe&)>& change) {
        editAndConfirm([&](FRecipe& dialog) {
            for (const auto& [column, value] : theirs) store(column, value);
            change(dialog);
        });
    }
    [[nodiscard]] Error conflictWith(const std::vector<std::pair<Column, Variant>>& theirs,
                                     const std::function<void(FRecipe&)>& change) {
        try {
            editWhileTheyStore(theirs, change);
        } catch (const Error& error) {
            return error;
        }
        return {0, "no error"};
    }
    void speakEnglish() {
        host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
        window->resourceTexts.InitResources(host.registry);
    }
    /// Edits while another deletes the recipe.
    [[nodiscard]] Error conflictWithItsDeletion() {
        try {
            editAndConfirm([this](FRecipe& dialog) {
                plant.database.table("TrcpRecipe").remove(id);
                dialog.txtComment->setText("mine");
            });
        } catch (const Error& error) {
            return error;
        }
        return {0, "no error"};
    }
    [[nodiscard]] static std::string changed(const std::string& entries) {
        return "Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:" + entries;
    }
};

TEST_F(MRecipeBesideAnother, WhatTheUserDoesNotTouchIsNotReverted) {
    store(VarLoad, "before");
    store(StandardValue, 0.5);
    const std::vector<std::pair<Column, Variant>> theirs = {
        {Name, "Kaffee"},       {VarRecipeName, "a"}, {VarDescription, "b"}, {FilePath, "c"},
        {FileExtension, "de"},  {Enabled, true},      {VarLoad, "f"},        {VarSave, "g"},
        {VarRead, "h"},         {VarWrite, "i"},      {StandardValue, 2.5},  {VarSetValue, "j"},
        {SaveSubRecipes, true}, {SaveChanges, true},  {CryptEngine, true},   {Options, 3}};
    editWhileTheyStore(theirs, [](FRecipe& dialog) { dialog.txtComment->setText("mine"); });
    EXPECT_EQ(stored(Comment), Variant("mine"));
    for (const auto& [column, value] : theirs) EXPECT_EQ(stored(column), value) << column;
}

TEST_F(MRecipeBesideAnother, ConfirmedWithoutAChangeNothingIsWritten) {
    editWhileTheyStore({{Comment, "theirs"}}, [](FRecipe&) {});
    EXPECT_EQ(stored(Comment), Variant("theirs"));
}

TEST_F(MRecipeBesideAnother, EveryPropertyThatBothChangeIsAConflict) {
    for (const TextRow& row : textRows) {
        SCOPED_TRACE(row.column);
        const Error error = conflictWith({{row.column, "xy"}}, [&](FRecipe& dialog) {
            dialog.optRecipeAbsrel[FRecipe::relative]->setValue(true);
            (dialog.*row.box)->setText("zz");
        });
        EXPECT_EQ(error.number(), ado::dbErrRowChanged);
        EXPECT_EQ(stored(row.column), Variant("xy"));
        EXPECT_EQ(recipes.editMode(), ado::adEditNone);
    }
}

TEST_F(MRecipeBesideAnother, AConflictTellsWhatWasEnteredAndWhatIsStoredNow) {
    const Error error = conflictWith({{Comment, "theirs"}, {VarRead, "untouched"}}, [](FRecipe& dialog) {
        dialog.txtComment->setText("mine");
        dialog.chkEnabled->click();
        dialog.cboFilePath->setText(std::string(100, 'p'));
    });
    EXPECT_EQ(error.description(), changed("\r\nRezeptdateipfad: \"" + std::string(80, 'p') +
                                           "...\"\r\nDefinition aktiv: \"ja\"\r\nKommentar: \"mine\"; gespeichert ist "
                                           "jetzt \"theirs\""));
}

TEST_F(MRecipeBesideAnother, AConflictIsToldInEnglishToo) {
    speakEnglish();
    store(SaveChanges, true);
    const Error error = conflictWith({{Comment, "theirs"}}, [](FRecipe& dialog) {
        dialog.txtComment->setText("x");
        dialog.chkSaveChanges->click();
        dialog.chkCryptEngine->click();
    });
    const std::string told = error.description();
    EXPECT_TRUE(
        told.starts_with("The row was changed by another. Nothing of this was stored:\r\nComment: \"x\"; stored "
                         "is now \"theirs\"\r\n"))
        << told;
    EXPECT_NE(told.find(": \"no\"\r\n"), std::string::npos) << told;
    EXPECT_TRUE(told.ends_with(": \"yes\"")) << told;
}

TEST_F(MRecipeBesideAnother, AConflictNamesEveryPropertyAsTheDialogDoes) {
    std::vector<std::string> captions;
    const Error error = conflictWith({{Name, "theirs"}}, [&](FRecipe& dialog) {
        dialog.optRecipeAbsrel[FRecipe::relative]->setValue(true);
        for (const TextRow& row : textRows) (dialog.*row.box)->setText("z");
        dialog.cboFilePath->setText("z");
        dialog.txtStandardValue->setText("7");
        for (const auto& box : {dialog.chkEnabled, dialog.chkWriteThru, dialog.chkSaveSubRecipes, dialog.chkSaveChanges,
                                dialog.chkCryptEngine}) {
            box->click();
        }
        // In the order of the columns.
        const forms::Captioned* const labels[] = {
            dialog.lblName.get(),        dialog.lblRecipeName.get(),       dialog.lblDescription.get(),
            dialog.lblFilePath.get(),    dialog.lblFileExtension.get(),    dialog.chkEnabled.get(),
            dialog.lblComment.get(),     dialog.lblVarLoad.get(),          dialog.lblVarSave.get(),
            dialog.lblVarRead.get(),     dialog.lblVarWrite.get(),         dialog.lblStandardValue.get(),
            dialog.lblVarSetValue.get(), dialog.chkSaveSubRecipes.get(),   dialog.chkSaveChanges.get(),
            dialog.chkCryptEngine.get(), dialog.fraTransferBehaviour.get()};
        for (const auto* label : labels) captions.push_back(automation::replaceAll(label->caption(), "&", ""));
    });
    const std::vector<std::string> lines = automation::split(error.description(), '\n');
    ASSERT_EQ(lines.size(), captions.size() + 1);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        EXPECT_TRUE(lines[i + 1].starts_with(captions[i] + ": \"")) << lines[i + 1] << "; " << captions[i];
    }
}

TEST_F(MRecipeBesideAnother, ARecipeThatIsGoneIsToldWithWhatWasEntered) {
    const Error error = conflictWithItsDeletion();
    EXPECT_EQ(error.number(), ado::dbErrDeletedRow);
    EXPECT_EQ(error.description(),
              "Die Zeile wurde von jemand anderem gelöscht. Nichts davon wurde gespeichert:"
              "\r\nKommentar: \"mine\"");
}

TEST_F(MRecipeBesideAnother, ARecipeThatIsGoneIsToldInEnglishToo) {
    speakEnglish();
    EXPECT_EQ(conflictWithItsDeletion().description(),
              "The row was deleted by another. Nothing of this was stored:\r\nComment: \"mine\"");
}

TEST(ValueInWords, IsCutBehindEightyCharacters) {
    EXPECT_EQ(valueInWords(Variant(std::string(80, 'x')), automation::Language::german), std::string(80, 'x'));
    EXPECT_EQ(valueInWords(Variant(std::string(81, 'x')), automation::Language::german), std::string(80, 'x') + "...");
}

TEST(ValueInWords, AreYesAndNo) {
    EXPECT_EQ(valueInWords(Variant(true), automation::Language::german), "ja");
    EXPECT_EQ(valueInWords(Variant(false), automation::Language::german), "nein");
}

TEST_F(MRecipeBesideAnother, TheDialogShowsWhatIsStoredWhenItOpens) {
    OpenAndMoveFirst(recipes);
    recipes.find("ID=" + std::to_string(id));
    EXPECT_EQ(recipes.field("Comment").value(), Variant(""));
    store(Comment, "theirs");
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) { EXPECT_EQ(dialog.txtComment->text(), "theirs"); });
    EXPECT_FALSE(EditRecipe(recipes, *window));
    EXPECT_EQ(host.record.modals.size(), 1U);
}

}  // namespace
}  // namespace hx::recipe
