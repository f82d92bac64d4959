// SPDX-License-Identifier: MIT
#include "dialogs/mconfigeditor.h"

#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

using automation::Variant;
using forms::CheckState;
using forms::Font;

/// Stands for the editor window: font, grid, status line and settings.
class EditorWindow : public forms::Form, public ConfigurableWindow {
  public:
    explicit EditorWindow(const host::Services& services)
        : Form("frmtabgrid", services.screen),
          tdbRM(add<forms::Grid>("tdbRM")),
          sb(add<forms::StatusBar>("sb", 3U)),
          settings_(std::make_shared<settings::CInit>(services.iniFile, services.numberFormat)) {
        tdbRM->addColumn("VarRecipe").setWidth(1234);
        tdbRM->addColumn("ChildID");
        settings_->Motherobject = this;
        settings_->LoadDefaultInit("frmtabGridRCP");
    }
    forms::Form& editorWindow() override { return *this; }
    forms::Grid& memberGrid() override { return *tdbRM; }
    forms::StatusBar& statusBar() override { return *sb; }
    settings::CInit& inits() override {
        if (brokenSettings) throw automation::Error(automation::errFail, "broken");
        return *settings_;
    }
    void tell(std::string_view text) override {
        screen().messageBox(text, forms::message::ok, forms::message::defaultTitle);
    }
    void abr_Resize() override { steps.push_back(sb->visible() ? "Resize, seen" : "Resize, hidden"); }

    [[nodiscard]] Variant stored(const std::string& entry) const {
        return settings_->ReadAValueFromCInits(entry, Variant("missing"));
    }

    std::shared_ptr<forms::Grid> tdbRM;
    std::shared_ptr<forms::StatusBar> sb;
    std::vector<std::string> steps;
    bool brokenSettings = false;

  private:
    std::shared_ptr<settings::CInit> settings_;
};

class MConfigeditorTest : public DialogsTest {
  protected:
    std::shared_ptr<EditorWindow> window = std::make_shared<EditorWindow>(host.services());

    // Opens the options; the user does `action`. Gives what the entry point returns.
    std::int32_t edit(const std::function<void(FConfigEditor&)>& action = {}) {
        window->load();
        host.script.onModal["FConfigEditor"] = [&](forms::Form& form) {
            if (action) action(dynamic_cast<FConfigEditor&>(form));
        };
        return ShowConfigEditor(*window, host.services(), help);
    }
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> all;
        for (const auto& message : host.record.messages) {
            all.push_back(message.title + ": " + message.text + " " + std::to_string(message.style));
        }
        return all;
    }
    const Font::Values chosen = {.name = "Courier", .size = 11.25, .weight = 700, .italic = true};
};

TEST_F(MConfigeditorTest, ShowsTheOptionsOfTheWindow) {
    window->font().setValues(chosen);
    EXPECT_EQ(edit([&](FConfigEditor& dialog) {
                  EXPECT_EQ(dialog.txtEditorFont->font().values(), chosen);
                  EXPECT_EQ(dialog.txtEditorFont->text(), "Courier");
                  EXPECT_EQ(dialog.chkSaveOnExit->value(), CheckState::checked);
                  EXPECT_EQ(dialog.chkDelQuestion->value(), CheckState::checked);
                  EXPECT_EQ(dialog.chkShowStatusBar->value(), CheckState::checked);
                  EXPECT_EQ(dialog.owner(), window->share());
              }),
              0);
    ASSERT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_NE(host.record.modals[0].owner, 0);
}

TEST_F(MConfigeditorTest, LeavesTheBoxesOfWhatIsSwitchedOffCleared) {
    window->inits().WriteAValueToCInits("SaveOnExit", Variant(false));
    window->inits().WriteAValueToCInits("RequestOnDelete", Variant(false));
    window->sb->setVisible(false);
    edit([](FConfigEditor& dialog) {
        EXPECT_EQ(dialog.chkSaveOnExit->value(), CheckState::unchecked);
        EXPECT_EQ(dialog.chkDelQuestion->value(), CheckState::unchecked);
        EXPECT_EQ(dialog.chkShowStatusBar->value(), CheckState::unchecked);
    });
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MConfigeditorTest, TicksTheBoxesOfEntriesThatAreMissing) {
    window->inits().DeleteAValueInCInits("SaveOnExit");
    window->inits().DeleteAValueInCInits("RequestOnDelete");
    edit([](FConfigEditor& dialog) {
        EXPECT_EQ(dialog.chkSaveOnExit->value(), CheckState::checked);
        EXPECT_EQ(dialog.chkDelQuestion->value(), CheckState::checked);
    });
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MConfigeditorTest, KeepsTheQuestionWhereItsEntryIsDamaged) {
    for (const Variant& damaged : {Variant(1.0), Variant("perhaps")}) {
        window->inits().WriteAValueToCInits("RequestOnDelete", damaged);
        ASSERT_TRUE(asksBeforeDeleting(window->inits()));
        edit([](FConfigEditor& dialog) {
            EXPECT_EQ(dialog.chkDelQuestion->value(), CheckState::checked);
            dialog.cmdOk->click();
        });
        EXPECT_TRUE(asksBeforeDeleting(window->inits()));
    }
    EXPECT_EQ(host.record.modals.size(), 2U);
}

TEST_F(MConfigeditorTest, LeavesFontOptionsAndStoreUnchangedWhenCancelled) {
    const Font::Values before = window->font().values(), gridBefore = window->tdbRM->font().values();
    const auto change = [&](FConfigEditor& dialog) {
        dialog.txtEditorFont->font().setValues(chosen);
        dialog.chkSaveOnExit->click();
        dialog.chkDelQuestion->click();
        dialog.chkShowStatusBar->click();
    };
    EXPECT_EQ(edit([&](FConfigEditor& dialog) {
                  change(dialog);
                  dialog.cmdCancel->click();
              }),
              0);
    EXPECT_EQ(edit(change), 0);  // closed by the frame
    EXPECT_TRUE(closedByFrame());
    EXPECT_EQ(window->font().values(), before);
    EXPECT_EQ(window->tdbRM->font().values(), gridBefore);
    EXPECT_EQ(window->stored("SaveOnExit"), Variant(true));
    EXPECT_EQ(window->stored("RequestOnDelete"), Variant(true));
    EXPECT_EQ(window->stored("tdbRM.Columns(\"VarRecipe\").Width"), Variant(3000.189));
    EXPECT_TRUE(window->sb->visible());
    EXPECT_TRUE(window->steps.empty());
    EXPECT_TRUE(host.record.messages.empty());
}

TEST_F(MConfigeditorTest, GivesTheFontToTheWindowAndToTheGridAlike) {
    window->font().setCharset(2);
    EXPECT_EQ(edit([&](FConfigEditor& dialog) {
                  dialog.txtEditorFont->font().setValues(chosen);
                  dialog.cmdOk->click();
              }),
              0);
    EXPECT_EQ(window->font().values(), chosen);
    EXPECT_EQ(window->tdbRM->font().values(), chosen);
    EXPECT_EQ(window->stored("tdbRM.Font.Name"), Variant("Courier"));
    EXPECT_EQ(window->stored("tdbRM.Font.Size"), Variant(11.25));
    EXPECT_EQ(window->stored("tdbRM.Font.Weight"), Variant(std::int16_t{700}));
    EXPECT_EQ(window->stored("Me.Font.Name"), Variant("Arial")) << "the window's font is read when it closes";
}

TEST_F(MConfigeditorTest, RewritesTheSameValuesWhenConfirmedWithoutChanges) {
    window->font().setValues(chosen);
    EXPECT_EQ(edit([](FConfigEditor& dialog) { dialog.cmdOk->click(); }), 0);
    EXPECT_EQ(window->font().values(), chosen);
    EXPECT_EQ(window->tdbRM->font().values(), chosen);
    EXPECT_EQ(window->stored("SaveOnExit"), Variant(true));
    EXPECT_EQ(window->stored("RequestOnDelete"), Variant(true));
    EXPECT_EQ(window->stored("sb.Visible"), Variant(true));
    EXPECT_TRUE(window->sb->visible());
    EXPECT_EQ(window->steps, std::vector<std::string>{"Resize, seen"});
}

TEST_F(MConfigeditorTest, ReadsTheColumnsOfTheGridIntoTheStore) {
    edit([](FConfigEditor& dialog) { dialog.cmdOk->click(); });
    EXPECT_EQ(window->stored("tdbRM.Columns(\"VarRecipe\").Width"), Variant(1234.0));
}

TEST_F(MConfigeditorTest, StoresTheOptionsAndLaysTheWindowOutAnew) {
    edit([](FConfigEditor& dialog) {
        dialog.chkSaveOnExit->click();
        dialog.chkDelQuestion->click();
        dialog.chkShowStatusBar->click();
        dialog.cmdOk->click();
    });
    EXPECT_EQ(window->stored("SaveOnExit"), Variant(false));
    EXPECT_EQ(window->stored("RequestOnDelete"), Variant(false));
    EXPECT_EQ(window->stored("sb.Visible"), Variant(false));
    EXPECT_FALSE(window->sb->visible());
    EXPECT_EQ(window->steps, std::vector<std::string>{"Resize, hidden"});
    edit([](FConfigEditor& dialog) {
        dialog.chkSaveOnExit->click();
        dialog.chkDelQuestion->click();
        dialog.chkShowStatusBar->click();
        dialog.cmdOk->click();
    });
    EXPECT_EQ(window->stored("SaveOnExit"), Variant(true));
    EXPECT_EQ(window->stored("RequestOnDelete"), Variant(true));
    EXPECT_TRUE(window->sb->visible());
}

TEST_F(MConfigeditorTest, TakesAGreyedBoxAsTicked) {
    window->inits().WriteAValueToCInits("SaveOnExit", Variant(false));
    edit([](FConfigEditor& dialog) {
        dialog.chkSaveOnExit->setValue(CheckState::greyed);
        dialog.chkDelQuestion->setValue(CheckState::greyed);
        dialog.chkShowStatusBar->setValue(CheckState::greyed);
        dialog.cmdOk->click();
    });
    EXPECT_EQ(window->stored("SaveOnExit"), Variant(true));
    EXPECT_EQ(window->stored("RequestOnDelete"), Variant(true));
    EXPECT_TRUE(window->sb->visible());
}

TEST_F(MConfigeditorTest, WritesNothingToTheFileItself) {
    edit([](FConfigEditor& dialog) { dialog.cmdOk->click(); });
    EXPECT_EQ(host.iniFile.read("frmtabGridRCP", "SaveOnExit", "unwritten", ""), "unwritten");
}

TEST_F(MConfigeditorTest, SaysThatItCannotBeFilled) {
    for (const std::int32_t language : {german, english}) {
        speak(language);
        window->brokenSettings = true;
        EXPECT_EQ(edit([](FConfigEditor&) { FAIL() << "it is not shown"; }), 0);
    }
    const std::string text = "HXRecipeEditor: Initialisierung Konfigurationsdialog fehlgegangen 0";
    EXPECT_EQ(messages(), (std::vector{text, text}));
    EXPECT_TRUE(host.record.modals.empty());
}

TEST_F(MConfigeditorTest, SaysThatItCannotBeWrittenBackAndKeepsTheStepsDone) {
    EXPECT_EQ(edit([&](FConfigEditor& dialog) {
                  dialog.txtEditorFont->font().setValues(chosen);
                  dialog.chkShowStatusBar->click();
                  dialog.cmdOk->click();
                  window->brokenSettings = true;
              }),
              0);
    EXPECT_EQ(messages(),
              std::vector<std::string>{"HXRecipeEditor: Zurückschreiben von Konfigurationsdialog fehlgegangen 0"});
    EXPECT_EQ(window->font().values(), chosen);
    EXPECT_EQ(window->tdbRM->font().values(), chosen);
    EXPECT_TRUE(window->sb->visible()) << "what comes after the failure is not done";
    EXPECT_TRUE(window->steps.empty());
}

TEST_F(MConfigeditorTest, SaysSoWhenTheStoreHasNoEntriesOfTheGrid) {
    window->inits().DeleteAValueInCInits("tdbRM");
    edit([](FConfigEditor& dialog) { dialog.cmdOk->click(); });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_NE(messages()[0].find("Zurückschreiben"), std::string::npos);
}

TEST_F(MConfigeditorTest, TellsByItsResultWhetherTheDialogCouldBeFilledAndApplied) {
    const auto dialog = std::make_shared<FConfigEditor>(host.services(), help);
    EXPECT_TRUE(InitConfigEditor(*window, *dialog));
    EXPECT_TRUE(WriteBackConfigEditor(*window, *dialog));
    window->brokenSettings = true;
    EXPECT_FALSE(InitConfigEditor(*window, *dialog));
    EXPECT_FALSE(WriteBackConfigEditor(*window, *dialog));
}

}  // namespace
}  // namespace hx::dialogs
