// SPDX-License-Identifier: MIT
#include "dialogs/frecipe.h"

#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

using forms::SystemColor;
using forms::TextBox;
using Names = std::vector<std::string>;

class FRecipeTest : public DialogsTest {
  protected:
    std::shared_ptr<FRecipe> dialog = std::make_shared<FRecipe>(host.services(), texts, help);

    // As the dialog is filled from a row: the factor, then the option button that fits it.
    void fill(const std::string& factor, const std::string& variable = {}) {
        dialog->txtStandardValue->setText(factor);
        dialog->txtVarSetValue->setText(variable);
        dialog->optRecipeAbsrel[factor == "0" ? 0 : 1]->setValue(true);
    }
    [[nodiscard]] bool fieldsAre(bool enabled, SystemColor color) const {
        return dialog->txtStandardValue->enabled() == enabled && dialog->txtVarSetValue->enabled() == enabled &&
               dialog->txtStandardValue->backColor() == color && dialog->txtVarSetValue->backColor() == color;
    }
};

// --- loading

TEST_F(FRecipeTest, IsCancelledFromTheMomentItIsLoaded) {
    dialog->setCancelled(false);
    dialog->load();
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FRecipeTest, OpensOnTheFirstTab) {
    dialog->tab->setTab(2);
    dialog->load();
    EXPECT_EQ(dialog->tab->tab(), 0);
}

TEST_F(FRecipeTest, OffersTheProjectFolderAsTheOnlyEntryOfThePath) {
    dialog->cboFilePath->setText("C:\\Rezepte");
    dialog->load();
    ASSERT_EQ(dialog->cboFilePath->listCount(), 1);
    EXPECT_EQ(dialog->cboFilePath->list(0), "<ProjectDir>");
    EXPECT_EQ(dialog->cboFilePath->text(), "C:\\Rezepte") << "what was filled in before stays";
    EXPECT_EQ(dialog->cboFilePath->style(), forms::ComboBox::Style::dropDownCombo);
    dialog->cboFilePath->setListIndex(0);
    dialog->cboFilePath->setText(dialog->cboFilePath->text() + "\\Rezepte");
    EXPECT_EQ(dialog->cboFilePath->text(), "<ProjectDir>\\Rezepte");
}

TEST_F(FRecipeTest, OffersTheProjectFolderOnceWhenItIsLoadedAgain) {
    dialog->load();
    dialog->unload(forms::UnloadMode::byCode);
    dialog->load();
    EXPECT_EQ(dialog->cboFilePath->listCount(), 1);
}

TEST_F(FRecipeTest, KnowsItsOwner) {
    const auto owner = std::make_shared<forms::Form>("frmtabgrid", host.screen);
    EXPECT_EQ(dialog->owner(), nullptr);
    dialog->setOwner(owner);
    EXPECT_EQ(dialog->get("Owner").asObject(), owner);
    show(*dialog);
    EXPECT_EQ(host.record.modals[0].owner, ownerHandle);
    EXPECT_EQ(host.record.modals[0].form, "FRecipe");
}

// --- absolute and relative

TEST_F(FRecipeTest, ShowsOneAsFactorWhenSwitchedToRelativeAndZeroWhenSwitchedBack) {
    fill("0");
    dialog->optRecipeAbsrel[1]->click();
    EXPECT_EQ(dialog->txtStandardValue->text(), "1");
    dialog->txtVarSetValue->setText("Sollwert");
    dialog->optRecipeAbsrel[0]->click();
    EXPECT_EQ(dialog->txtStandardValue->text(), "0");
    EXPECT_EQ(dialog->txtVarSetValue->text(), "");
}

TEST_F(FRecipeTest, DisablesTheFieldsOfRelativeValuesWhileAbsolute) {
    fill("0");
    EXPECT_TRUE(fieldsAre(false, SystemColor::buttonFace));
    dialog->optRecipeAbsrel[1]->click();
    EXPECT_TRUE(fieldsAre(true, SystemColor::window));
    dialog->optRecipeAbsrel[0]->click();
    EXPECT_TRUE(fieldsAre(false, SystemColor::buttonFace));
}

TEST_F(FRecipeTest, OpensWithTheFactorAndTheVariableOfARelativeRecipe) {
    fill("0.5", "Sollwert");
    show(*dialog);
    EXPECT_TRUE(dialog->optRecipeAbsrel[1]->value());
    EXPECT_FALSE(dialog->optRecipeAbsrel[0]->value());
    EXPECT_EQ(dialog->txtStandardValue->text(), "0.5");
    EXPECT_EQ(dialog->txtVarSetValue->text(), "Sollwert");
    EXPECT_TRUE(fieldsAre(true, SystemColor::window));
}

TEST_F(FRecipeTest, OpensAbsoluteForAZero) {
    fill("0", "left over");
    EXPECT_TRUE(dialog->optRecipeAbsrel[0]->value());
    EXPECT_EQ(dialog->txtVarSetValue->text(), "");
    EXPECT_TRUE(fieldsAre(false, SystemColor::buttonFace));
}

TEST_F(FRecipeTest, ReplacesOnlyAFactorOfExactlyZeroByOne) {
    for (const char* factor : {"0.0", "00", " 0", "", "abc", "-1"}) {
        fill("0");
        dialog->txtStandardValue->setText(factor);
        dialog->optRecipeAbsrel[1]->click();
        EXPECT_EQ(dialog->txtStandardValue->text(), factor);
        dialog->optRecipeAbsrel[0]->click();
    }
}

// --- the file extension

TEST_F(FRecipeTest, CutsAThirdCharacterOfTheFileExtensionWithABeepAndTheCaretAtTheEnd) {
    dialog->txtFileExtension->setText("rc");
    EXPECT_EQ(host.record.beeps, 0);
    dialog->txtFileExtension->caretReported(3, 0);
    dialog->txtFileExtension->setText("rcp");
    EXPECT_EQ(dialog->txtFileExtension->text(), "rc");
    EXPECT_EQ(dialog->txtFileExtension->selStart(), 2);
    EXPECT_EQ(dialog->txtFileExtension->selLength(), 0);
    EXPECT_EQ(host.record.beeps, 1);
}

TEST_F(FRecipeTest, PutsTheCaretAtTheEndOfTheFileExtensionAlsoAfterTypingInTheMiddle) {
    dialog->txtFileExtension->setText("rc");
    dialog->txtFileExtension->caretReported(1, 0);
    dialog->txtFileExtension->setText("xrc");
    EXPECT_EQ(dialog->txtFileExtension->text(), "xr");
    EXPECT_EQ(dialog->txtFileExtension->selStart(), 2);
}

TEST_F(FRecipeTest, CountsCharactersOfTheFileExtensionAndNotBytes) {
    dialog->txtFileExtension->setText("äß");
    EXPECT_EQ(dialog->txtFileExtension->text(), "äß");
    dialog->txtFileExtension->setText("äöü");
    EXPECT_EQ(dialog->txtFileExtension->text(), "äö");
    EXPECT_EQ(host.record.beeps, 1);
}

// --- choosing a variable

struct Chooser {
    std::size_t index;
    std::shared_ptr<TextBox> FRecipe::*field;
};

const std::vector<Chooser> choosers = {{0, &FRecipe::txtRecipeName}, {1, &FRecipe::txtDescription},
                                       {2, &FRecipe::txtVarLoad},    {3, &FRecipe::txtVarSave},
                                       {4, &FRecipe::txtVarRead},    {5, &FRecipe::txtVarWrite},
                                       {6, &FRecipe::txtVarSetValue}};

TEST_F(FRecipeTest, PutsTheChosenVariableIntoTheFieldBesideTheButton) {
    dialog->load();
    for (const auto& [index, field] : choosers) {
        TextBox& text = *((*dialog).*field);
        text.setText("before " + std::to_string(index));
        host.script.onItem = [&](const std::string&) { return "chosen " + std::to_string(index); };
        dialog->cmdChooseItem[index]->click();
        EXPECT_EQ(text.text(), "chosen " + std::to_string(index));
        ASSERT_EQ(host.record.items.size(), index + 1);
        EXPECT_EQ(host.record.items[index].current, "before " + std::to_string(index));
        EXPECT_EQ(host.record.items[index].owner, dialog->handle());
        EXPECT_EQ(dialog->cmdChooseItem[index]->index(), static_cast<std::int16_t>(index));
    }
    // Each button has changed its own field alone.
    for (const auto& [index, field] : choosers)
        EXPECT_EQ(((*dialog).*field)->text(), "chosen " + std::to_string(index));
}

TEST_F(FRecipeTest, LeavesTheFieldWhenTheChoiceIsCancelled) {
    dialog->txtVarLoad->setText("Laden");
    dialog->cmdChooseItem[2]->click();
    EXPECT_EQ(dialog->txtVarLoad->text(), "Laden");
    EXPECT_EQ(host.record.items.size(), 1U);
}

TEST_F(FRecipeTest, LeavesTheFieldWhenOnlySpacesAreChosen) {
    dialog->txtVarLoad->setText("Laden");
    host.script.onItem = [](const std::string&) { return "   "; };
    dialog->cmdChooseItem[2]->click();
    EXPECT_EQ(dialog->txtVarLoad->text(), "Laden");
}

TEST_F(FRecipeTest, TrimsTheChosenVariable) {
    host.script.onItem = [](const std::string&) { return " Motor 1 "; };
    dialog->cmdChooseItem[2]->click();
    EXPECT_EQ(dialog->txtVarLoad->text(), "Motor 1");
}

TEST_F(FRecipeTest, HasNoButtonBeyondTheSeventh) {
    EXPECT_EQ(dialog->findControl("cmdChooseItem", 7), nullptr);
    EXPECT_EQ(dialog->findControl("cmdChooseItem", -1), nullptr);
    EXPECT_THROW(dialog->get("cmdChooseItem", std::array{automation::Variant(std::int32_t{7})}), automation::Error);
}

TEST_F(FRecipeTest, TellsInTheUsersLanguageThatMemoryIsMissing) {
    host.screen.setLanguage(automation::Language::german);
    host.script.onItem = [](const std::string&) -> std::string { throw std::bad_alloc(); };
    show<FRecipe>(*dialog, [](FRecipe& shown) { shown.cmdChooseItem[2]->click(); });
    ASSERT_EQ(host.record.messages.size(), 1U);
    EXPECT_EQ(host.record.messages[0].text, "-2147024882: Der Speicher reicht nicht aus.");
}

TEST_F(FRecipeTest, ShowsWhyVariablesCannotBeChosenAndGoesOn) {
    host.script.onItem = [](const std::string&) -> std::string {
        throw automation::Error(automation::errFail, "The list of variables cannot be read");
    };
    dialog->txtVarLoad->setText("Laden");
    show<FRecipe>(*dialog, [](FRecipe& shown) {
        shown.cmdChooseItem[2]->click();
        EXPECT_TRUE(shown.visible());
        shown.cmdOk->click();
    });
    ASSERT_EQ(host.record.messages.size(), 1U);
    EXPECT_EQ(host.record.messages[0].text, "-2147467259: The list of variables cannot be read");
    EXPECT_EQ(host.record.messages[0].title, "FRecipe");
    EXPECT_EQ(dialog->txtVarLoad->text(), "Laden");
    EXPECT_FALSE(dialog->cancelled());
}

// --- choosing a path

TEST_F(FRecipeTest, TakesTheChosenPathAsItIs) {
    dialog->load();
    dialog->cboFilePath->setText("<ProjectDir>\\Rezepte");
    for (const char* path : {"C:\\Neu", "", "  blanks  "}) {
        host.script.onFolder = [&](const std::string&) { return path; };
        dialog->cmdChoosePath->click();
        EXPECT_EQ(dialog->cboFilePath->text(), path);
    }
    EXPECT_EQ(host.record.folders[0].current, "<ProjectDir>\\Rezepte");
    EXPECT_EQ(host.record.folders[0].owner, dialog->handle());
}

TEST_F(FRecipeTest, KeepsThePathWhenTheChoiceGivesTheOldOneBack) {
    dialog->cboFilePath->setText("<ProjectDir>");
    dialog->cmdChoosePath->click();
    EXPECT_EQ(dialog->cboFilePath->text(), "<ProjectDir>");
    EXPECT_EQ(host.record.folders.size(), 1U);
}

// --- tabs

const Names buttonNames = {"cmdOk", "cmdCancel", "cmdHelp"};

Names with(Names names, const Names& more) {
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

TEST_F(FRecipeTest, LetsTheTabulatorKeyReachTheControlsOfTheVisibleTabOnly) {
    fill("1");
    dialog->load();
    EXPECT_EQ(tabOrder(*dialog),
              with({"tab", "txtName", "txtRecipeName", "cmdChooseItem(0)", "txtDescription", "cmdChooseItem(1)",
                    "cboFilePath", "cmdChoosePath", "txtFileExtension", "txtComment", "chkEnabled"},
                   buttonNames));
    dialog->tab->setTab(1);
    EXPECT_EQ(tabOrder(*dialog),
              with({"tab", "txtVarLoad", "cmdChooseItem(2)", "txtVarSave", "cmdChooseItem(3)", "txtVarRead",
                    "cmdChooseItem(4)", "txtVarWrite", "cmdChooseItem(5)", "optRecipeAbsrel(0)", "optRecipeAbsrel(1)",
                    "txtStandardValue", "txtVarSetValue", "cmdChooseItem(6)"},
                   buttonNames));
    dialog->tab->setTab(2);
    EXPECT_EQ(tabOrder(*dialog),
              with({"tab", "chkWriteThru", "chkSaveThru", "chkSaveSubRecipes", "chkSaveChanges", "chkCryptEngine"},
                   buttonNames));
    dialog->tab->setTab(0);
    EXPECT_TRUE(dialog->txtName->tabStop());
    EXPECT_FALSE(dialog->chkCryptEngine->tabStop());
}

// --- buttons and keys

TEST_F(FRecipeTest, IsConfirmedByOk) {
    show<FRecipe>(*dialog, [](FRecipe& shown) { shown.cmdOk->click(); });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_FALSE(dialog->visible());
    EXPECT_TRUE(dialog->loaded()) << "it only hides";
    EXPECT_FALSE(closedByFrame());
}

TEST_F(FRecipeTest, IsCancelledByCancel) {
    show<FRecipe>(*dialog, [](FRecipe& shown) {
        shown.setCancelled(false);
        shown.cmdCancel->click();
    });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_FALSE(dialog->visible());
    EXPECT_FALSE(closedByFrame());
}

TEST_F(FRecipeTest, IsCancelledByItsFrameAndKeepsWhatWasTyped) {
    show<FRecipe>(*dialog, [](FRecipe& shown) { shown.txtName->setText("typed"); });
    EXPECT_TRUE(closedByFrame());
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_EQ(dialog->txtName->text(), "typed");
}

TEST_F(FRecipeTest, IsCancelledByEsc) {
    show<FRecipe>(*dialog, [this](FRecipe& shown) { type(shown, "{ESC}"); });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_FALSE(closedByFrame());
}

TEST_F(FRecipeTest, IsConfirmedByEnterBeforeItsControlsSeeTheKey) {
    int seen = 0;
    dialog->cmdCancel->keyDownEvent.connect([&](forms::KeyEvent&) { ++seen; });
    dialog->cmdCancel->clickEvent.connect([&] { ++seen; });
    dialog->cmdCancel->focusChanged(true);
    show<FRecipe>(*dialog, [this](FRecipe& shown) { type(shown, "{ENTER}"); });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_FALSE(dialog->visible());
    EXPECT_EQ(seen, 0);
}

TEST_F(FRecipeTest, DoesNothingOnEnterWithTheOkButtonDisabled) {
    dialog->cmdCancel->focusChanged(true);
    show<FRecipe>(*dialog, [this](FRecipe& shown) {
        shown.cmdOk->setEnabled(false);
        type(shown, "{ENTER}");
        EXPECT_TRUE(shown.visible());
    });
    EXPECT_TRUE(closedByFrame());
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FRecipeTest, OpensTheHelpOfTheDialogByItsButton) {
    show<FRecipe>(*dialog, [](FRecipe& shown) {
        shown.cmdHelp->click();
        EXPECT_TRUE(shown.visible());
    });
    ASSERT_EQ(host.record.sentKeys.size(), 1U);
    EXPECT_EQ(host.record.sentKeys[0].form, "FRecipe");
    EXPECT_EQ(host.record.sentKeys[0].keys, "{F1}");
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].file, "/opt/shared/helpfiles/Rezeptsystem.chm");
    EXPECT_EQ(host.record.help[0].context, 100030);
}

TEST_F(FRecipeTest, OpensItsHelpByF1InAnyControlForItsOwnWindow) {
    forms::WindowHandle handle = 0;
    show<FRecipe>(*dialog, [&](FRecipe& shown) {
        handle = shown.handle();
        shown.txtComment->focusChanged(true);
        type(shown, "{F1}");
        type(shown, "+{F1}");
    });
    ASSERT_EQ(host.record.help.size(), 1U) << "Shift+F1 is another key";
    EXPECT_EQ(host.record.help[0].context, resources::help_context::recipeDialog);
    EXPECT_EQ(host.record.help[0].owner, handle);
}

TEST_F(FRecipeTest, AcceptsAnyTextWithoutAMessage) {
    show<FRecipe>(*dialog, [](FRecipe& shown) {
        shown.txtName->setText("");
        shown.txtVarLoad->setText("no such variable");
        shown.txtStandardValue->setText("abc");
        shown.cmdOk->click();
    });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_TRUE(host.record.messages.empty());
}

TEST_F(FRecipeTest, HasAnOkButtonAsDefaultAndEscForCancel) {
    EXPECT_TRUE(dialog->cmdOk->isDefault());
    EXPECT_TRUE(dialog->cmdCancel->isCancel());
    EXPECT_FALSE(dialog->cmdHelp->isDefault());
    EXPECT_FALSE(dialog->cmdHelp->isCancel());
}

TEST_F(FRecipeTest, HearsNothingAnyMoreWhenItHasEnded) {
    const auto extension = dialog->txtFileExtension;
    const auto ok = dialog->cmdOk;
    dialog.reset();
    ok->click();
    extension->setText("long");
    EXPECT_EQ(extension->text(), "long");
    EXPECT_EQ(host.record.beeps, 0);
}

}  // namespace
}  // namespace hx::dialogs
