// SPDX-License-Identifier: MIT
#include "dialogs/fsub_recipe.h"

#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

class FSubRecipeTest : public DialogsTest {
  protected:
    std::shared_ptr<FSubRecipe> dialog = std::make_shared<FSubRecipe>(host.services(), texts, help);

    void fill(const std::string& variable, std::int32_t selected = 0) {
        dialog->cmbChooseRecipe->addItem("Grundrezept");
        dialog->cmbChooseRecipe->setItemData(0, 7);
        dialog->cmbChooseRecipe->setListIndex(selected);
        dialog->txtVarRecipe->setText(variable);
    }
    /// Presses OK in the shown dialog; true when that closes it.
    bool ok() {
        bool open = true;
        show<FSubRecipe>(*dialog, [&](FSubRecipe& shown) {
            shown.cmdOk->click();
            open = shown.visible();
        });
        return !open;
    }
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> shown;
        for (const auto& message : host.record.messages) shown.push_back(message.text);
        return shown;
    }
    using Messages = std::vector<std::string>;
    const Messages recipeMissing = {"Es muss ein gültiges Unterrezept gewählt werden"};
    const Messages variableMissing = {
        "Es muss ein gültiges Unterrezept und ein Item für den Dateinamen gewählt werden"};
};

TEST_F(FSubRecipeTest, IsGerman) {
    dialog->load();
    EXPECT_EQ(dialog->caption(), "Unterrezept auswählen");
    EXPECT_EQ(dialog->lblChooseRecipe->caption(), "&Unterrezept");
    EXPECT_EQ(dialog->Label1->caption(), "&Dateiname");
    EXPECT_EQ(dialog->cmdOk->caption(), "OK");
    EXPECT_EQ(dialog->cmdCancel->caption(), "Abbrechen");
    EXPECT_EQ(dialog->cmdHelp->caption(), "&Hilfe");
}

TEST_F(FSubRecipeTest, IsEnglish) {
    speak(english);
    dialog->load();
    EXPECT_EQ(dialog->caption(), "Select Sub Recipe");
    EXPECT_EQ(dialog->lblChooseRecipe->caption(), "&SubRecipe");
    EXPECT_EQ(dialog->Label1->caption(), "&File Name");
    EXPECT_EQ(dialog->cmdOk->caption(), "OK");
    EXPECT_EQ(dialog->cmdCancel->caption(), "Cancel");
    EXPECT_EQ(dialog->cmdHelp->caption(), "&Help");
}

TEST_F(FSubRecipeTest, ItsFieldsStandInAFrameUnderTheirNames) {
    const auto& rows = dialog->layout().rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].field, dialog->fraChooseRecipe.get());
    for (std::size_t row : {std::size_t{1}, std::size_t{2}}) EXPECT_EQ(rows[row].container, rows[0].field);
    EXPECT_EQ(rows[1].label, dialog->lblChooseRecipe.get());
    EXPECT_EQ(rows[1].field, dialog->cmbChooseRecipe.get());
    EXPECT_EQ(rows[2].label, dialog->Label1.get());
    EXPECT_EQ(rows[2].field, dialog->txtVarRecipe.get());
    EXPECT_EQ(rows[2].button, dialog->cmdChooseItem.get());
    EXPECT_EQ(dialog->fraChooseRecipe->name(), "fraChooseRecipe");
    EXPECT_EQ(dialog->lblChooseRecipe->name(), "lblChooseRecipe");
    EXPECT_EQ(dialog->Label1->name(), "Label1");
}

TEST_F(FSubRecipeTest, CarriesItsTextsInTags) {
    EXPECT_EQ(dialog->tag(), "C500");
    EXPECT_EQ(dialog->lblChooseRecipe->tag(), "C501");
    EXPECT_EQ(dialog->Label1->tag(), "C502");
}

TEST_F(FSubRecipeTest, ListsRecipesThatCannotBeTyped) {
    EXPECT_EQ(dialog->cmbChooseRecipe->style(), forms::ComboBox::Style::dropDownList);
    EXPECT_EQ(dialog->cmbChooseRecipe->container(), dialog->fraChooseRecipe.get());
}

TEST_F(FSubRecipeTest, IsReachedByTheTabulatorKeyFromTopToBottom) {
    EXPECT_EQ(tabOrder(*dialog), (std::vector<std::string>{"cmbChooseRecipe", "txtVarRecipe", "cmdChooseItem", "cmdOk",
                                                           "cmdCancel", "cmdHelp"}));
}

TEST_F(FSubRecipeTest, IsCancelledFromTheMomentItIsLoaded) {
    dialog->setCancelled(false);
    dialog->load();
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FSubRecipeTest, NeedsAFileNameVariableUnlessTheReceivingRecipeSavesItsSubRecipes) {
    fill("");
    EXPECT_FALSE(dialog->parentSavesSubRecipes());
    EXPECT_FALSE(ok());
    EXPECT_EQ(messages(), variableMissing);
    EXPECT_TRUE(dialog->cancelled());
    host.record.messages.clear();
    dialog->setParentSavesSubRecipes(true);
    EXPECT_TRUE(ok());
    EXPECT_EQ(messages(), Messages{});
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(FSubRecipeTest, TakesAFileNameOfOnlySpacesAsEmpty) {
    fill("   ");
    EXPECT_FALSE(ok());
    EXPECT_EQ(messages(), variableMissing);
    EXPECT_EQ(dialog->txtVarRecipe->text(), "   ");
}

TEST_F(FSubRecipeTest, AsksForARecipeAlsoWhenAFileNameVariableIsGiven) {
    fill("Dateiname", -1);
    EXPECT_FALSE(ok());
    EXPECT_EQ(messages(), recipeMissing);
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FSubRecipeTest, AsksForARecipeFirstAndAlsoWhenTheReceivingRecipeSavesItsSubRecipes) {
    fill("", -1);
    dialog->setParentSavesSubRecipes(true);
    EXPECT_FALSE(ok());
    dialog->setParentSavesSubRecipes(false);
    EXPECT_FALSE(ok());
    EXPECT_EQ(messages(), (Messages{recipeMissing[0], recipeMissing[0]}));
}

TEST_F(FSubRecipeTest, SaysWhatIsMissingInABoxWithOkAloneAndPutsTheKeyboardThere) {
    speak(english);
    fill("");
    (void)ok();
    ASSERT_EQ(host.record.messages.size(), 1U);
    const forms::ShownMessage& message = host.record.messages[0];
    EXPECT_EQ(message.text, "Please choose a valid SubRecipe and an Item which describes the File Name");
    EXPECT_EQ(message.style, forms::message::ok);
    EXPECT_EQ(message.buttons, std::vector{forms::message::Answer::ok});
    EXPECT_EQ(message.title, forms::message::defaultTitle);
    EXPECT_TRUE(dialog->txtVarRecipe->hasFocus());
    dialog->cmbChooseRecipe->setListIndex(-1);
    (void)ok();
    EXPECT_EQ(host.record.messages[1].text, "Please choose a valid SubRecipe");
    EXPECT_TRUE(dialog->cmbChooseRecipe->hasFocus());
}

TEST_F(FSubRecipeTest, CanBeConfirmedAfterTheMistakeIsMended) {
    fill("", -1);
    show<FSubRecipe>(*dialog, [](FSubRecipe& shown) {
        shown.cmdOk->click();
        shown.cmbChooseRecipe->setListIndex(0);
        shown.cmdOk->click();
        shown.txtVarRecipe->setText(" Datei ");
        shown.cmdOk->click();
    });
    EXPECT_EQ(messages(), (Messages{recipeMissing[0], variableMissing[0]}));
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_FALSE(closedByFrame());
    EXPECT_EQ(dialog->txtVarRecipe->text(), " Datei ") << "it stays as typed";
    EXPECT_TRUE(dialog->loaded());
}

TEST_F(FSubRecipeTest, IsConfirmedByEnterAndCancelledByEsc) {
    fill("Datei");
    show<FSubRecipe>(*dialog, [this](FSubRecipe& shown) { type(shown, "{ENTER}"); });
    EXPECT_FALSE(dialog->cancelled());
    show<FSubRecipe>(*dialog, [this](FSubRecipe& shown) { type(shown, "{ESC}"); });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FSubRecipeTest, IsCancelledByCancelAndByItsFrame) {
    fill("Datei");
    show<FSubRecipe>(*dialog, [](FSubRecipe& shown) {
        shown.setCancelled(false);
        shown.cmdCancel->click();
    });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_FALSE(closedByFrame());
    const auto second = std::make_shared<FSubRecipe>(host.services(), texts, help);
    show(*second);
    EXPECT_TRUE(closedByFrame());
    EXPECT_TRUE(second->cancelled());
}

TEST_F(FSubRecipeTest, LetsTheFileNameVariableBeChosen) {
    fill("Datei");
    dialog->load();
    host.script.onItem = [](const std::string&) { return " Neu "; };
    dialog->cmdChooseItem->click();
    EXPECT_EQ(dialog->txtVarRecipe->text(), "Neu");
    EXPECT_EQ(host.record.items[0].current, "Datei");
    EXPECT_EQ(host.record.items[0].owner, dialog->handle());
    for (const char* nothing : {"", "  "}) {
        host.script.onItem = [&](const std::string&) { return nothing; };
        dialog->cmdChooseItem->click();
        EXPECT_EQ(dialog->txtVarRecipe->text(), "Neu");
    }
    EXPECT_EQ(host.record.items.size(), 3U);
}

TEST_F(FSubRecipeTest, OpensItsHelpByTheButtonToo) {
    show<FSubRecipe>(*dialog, [](FSubRecipe& shown) {
        shown.cmdHelp->click();
        EXPECT_TRUE(shown.visible());
    });
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].context, 100031);
}

TEST_F(FSubRecipeTest, OpensItsHelpByF1) {
    show<FSubRecipe>(*dialog, [this](FSubRecipe& shown) { type(shown, "{F1}"); });
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].context, 100031);
}

TEST_F(FSubRecipeTest, IsReachedByName) {
    dialog->set("ParentSavesSubRecipes", automation::Variant(true));
    EXPECT_TRUE(dialog->parentSavesSubRecipes());
}

}  // namespace
}  // namespace hx::dialogs
