// SPDX-License-Identifier: MIT
#include "dialogs/fconfig_editor.h"

#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

using forms::Font;

class FConfigEditorTest : public DialogsTest {
  protected:
    std::shared_ptr<FConfigEditor> dialog = std::make_shared<FConfigEditor>(host.services(), help);
    Font& font = dialog->txtEditorFont->font();
};

TEST_F(FConfigEditorTest, IsGermanInBothLanguages) {
    for (const std::int32_t language : {german, english}) {
        speak(language);
        const auto fresh = std::make_shared<FConfigEditor>(host.services(), help);
        fresh->load();
        EXPECT_EQ(fresh->caption(), "Optionen");
        EXPECT_EQ(fresh->lblEditorFont->caption(), "&Editorfont");
        EXPECT_EQ(fresh->chkDelQuestion->caption(), "Abfrage vor &Löschen");
        EXPECT_EQ(fresh->chkShowStatusBar->caption(), "&Statuszeile anzeigen");
        EXPECT_EQ(fresh->chkSaveOnExit->caption(), "Einstellungen &automatisch beim Verlassen speichern");
        EXPECT_EQ(fresh->cmdOk->caption(), "OK");
        EXPECT_EQ(fresh->cmdCancel->caption(), "Abbrechen");
        EXPECT_EQ(fresh->cmdHelp->caption(), "&Hilfe");
    }
}

TEST_F(FConfigEditorTest, CarriesTheNumbersOfItsTextsInTags) {
    EXPECT_EQ(dialog->tag(), "C700");
    EXPECT_EQ(dialog->lblEditorFont->tag(), "C701");
    EXPECT_EQ(dialog->chkDelQuestion->tag(), "C702");
    EXPECT_EQ(dialog->chkShowStatusBar->tag(), "C703");
    EXPECT_EQ(dialog->chkSaveOnExit->tag(), "C704");
}

TEST_F(FConfigEditorTest, HasItsControlsInTheOrderOfTheDialog) {
    EXPECT_EQ(tabOrder(*dialog),
              (std::vector<std::string>{"txtEditorFont", "cmdEditorFont", "chkDelQuestion", "chkShowStatusBar",
                                        "chkSaveOnExit", "cmdOk", "cmdCancel", "cmdHelp"}));
    EXPECT_EQ(dialog->controls()[0], dialog->lblEditorFont);
    EXPECT_TRUE(dialog->txtEditorFont->locked());
    for (const auto& box : {dialog->chkDelQuestion, dialog->chkShowStatusBar, dialog->chkSaveOnExit}) {
        EXPECT_EQ(box->value(), forms::CheckState::unchecked);
    }
}

TEST_F(FConfigEditorTest, IsCancelledUnlessItWasClosedWithOk) {
    show(*dialog);
    EXPECT_TRUE(closedByFrame());
    EXPECT_TRUE(dialog->cancelled());
    show<FConfigEditor>(*dialog, [](FConfigEditor& shown) { shown.cmdOk->click(); });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(dialog->get("Cancel"), automation::Variant(false));
    show<FConfigEditor>(*dialog, [](FConfigEditor& shown) { shown.cmdCancel->click(); });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_EQ(dialog->get("Cancel"), automation::Variant(true));
    EXPECT_FALSE(closedByFrame());
    EXPECT_TRUE(dialog->loaded());
}

TEST_F(FConfigEditorTest, IsConfirmedByEnterAndCancelledByEsc) {
    show<FConfigEditor>(*dialog, [this](FConfigEditor& shown) { type(shown, "{ENTER}"); });
    EXPECT_FALSE(dialog->cancelled());
    show<FConfigEditor>(*dialog, [this](FConfigEditor& shown) { type(shown, "{ESC}"); });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FConfigEditorTest, OpensItsHelpByTheButtonAndByF1) {
    show<FConfigEditor>(*dialog, [this](FConfigEditor& shown) {
        shown.cmdHelp->click();
        type(shown, "{F1}");
    });
    ASSERT_EQ(host.record.help.size(), 2U);
    EXPECT_EQ(host.record.help[0].context, 100033);
    EXPECT_EQ(host.record.help[1].context, 100033);
    EXPECT_EQ(host.record.sentKeys[0].keys, "{F1}");
    EXPECT_EQ(host.record.sentKeys[0].form, "FConfigEditor");
}

TEST_F(FConfigEditorTest, OpensTheChoiceWithAStruckOutFontToo) {
    font.setValues({.name = "Times", .strikethrough = true});
    dialog->cmdEditorFont->click();
    ASSERT_EQ(host.record.fonts.size(), 1U);
    EXPECT_TRUE(host.record.fonts[0].before.strikethrough);
    EXPECT_FALSE(host.record.fonts[0].before.italic);
    EXPECT_FALSE(host.record.fonts[0].before.underline);
}

TEST_F(FConfigEditorTest, IsCancelledFromTheMomentItIsLoaded) {
    dialog->setCancelled(false);
    dialog->load();
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FConfigEditorTest, OpensTheChoiceWithTheFontOfItsField) {
    font.setValues({.name = "Times", .size = 8.25, .charset = 2, .weight = 700, .italic = true, .underline = true});
    dialog->cmdEditorFont->click();
    ASSERT_EQ(host.record.fonts.size(), 1U);
    const Font::Values& shown = host.record.fonts[0].before;
    EXPECT_EQ(shown.name, "Times");
    EXPECT_EQ(shown.size, 8.25);
    EXPECT_EQ(shown.weight, 700);
    EXPECT_TRUE(shown.italic);
    EXPECT_TRUE(shown.underline);
    EXPECT_FALSE(shown.strikethrough);
}

TEST_F(FConfigEditorTest, TakesTheChosenFontAndShowsItsName) {
    font.setCharset(2);
    host.script.onFont = [](Font::Values& values) {
        values = {.name = "Courier",
                  .size = 11.5,
                  .charset = 77,
                  .weight = 700,
                  .italic = true,
                  .strikethrough = true,
                  .underline = true};
        return true;
    };
    dialog->cmdEditorFont->click();
    const Font::Values expected = {.name = "Courier",
                                   .size = 11.5,
                                   .charset = 2,  // the choice has no character set
                                   .weight = 700,
                                   .italic = true,
                                   .strikethrough = true,
                                   .underline = true};
    EXPECT_EQ(font.values(), expected);
    EXPECT_EQ(dialog->txtEditorFont->text(), "Courier");
}

TEST_F(FConfigEditorTest, TakesABoldFontBackToNormal) {
    font.setWeight(300);
    std::int16_t offered = 0;
    host.script.onFont = [&](Font::Values& values) {
        offered = values.weight;
        return false;
    };
    dialog->cmdEditorFont->click();
    EXPECT_EQ(offered, 400) << "normal or bold, no other weight";
    font.setBold(true);
    host.script.onFont = [](Font::Values& values) {
        values.weight = 400;
        return true;
    };
    dialog->cmdEditorFont->click();
    EXPECT_EQ(font.weight(), 400);
}

TEST_F(FConfigEditorTest, LeavesTheFontAsItWasWhenTheChoiceIsCancelled) {
    for (const std::int16_t weight : {std::int16_t{300}, std::int16_t{400}, std::int16_t{600}, std::int16_t{700}}) {
        font.setValues({.name = "Times", .size = 9.75, .charset = 2, .weight = weight, .italic = true});
        const Font::Values before = font.values();
        dialog->cmdEditorFont->click();
        EXPECT_EQ(font.values(), before);
        EXPECT_EQ(dialog->txtEditorFont->text(), "Times");
    }
    EXPECT_TRUE(host.record.messages.empty());
}

}  // namespace
}  // namespace hx::dialogs
