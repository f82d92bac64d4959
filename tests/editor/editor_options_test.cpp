// SPDX-License-Identifier: MIT
#include "command_window.h"
#include "dialogs/fconfig_editor.h"

namespace hx::editor {
namespace {

using automation::Variant;
using dialogs::FConfigEditor;
using forms::CheckState;

struct EditorOptions : CommandWindow {
    /// The user changes something and presses OK.
    void configure(const std::function<void(FConfigEditor&)>& change) {
        inDialog<FConfigEditor>("FConfigEditor", [change](FConfigEditor& dialog) {
            change(dialog);
            dialog.cmdOk->click();
        });
        click("mnuOptionOption");
        ASSERT_EQ(host.record.modals.size(), 1U);
    }
    [[nodiscard]] Variant option(const std::string& name) const {
        return window->inits().ReadAValueFromCInits(name, Variant("missing"));
    }
};

TEST_F(EditorOptions, ShowTheDialogInFrontOfTheEditor) {
    configure([](FConfigEditor& dialog) {
        EXPECT_EQ(dialog.txtEditorFont->text(), "Arial");
        EXPECT_EQ(dialog.chkDelQuestion->value(), CheckState::checked);
        EXPECT_EQ(dialog.chkSaveOnExit->value(), CheckState::checked);
        EXPECT_EQ(dialog.chkShowStatusBar->value(), CheckState::checked);
    });
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditorOptions, NeverRefreshTheViewAfterwards) {
    configure([](FConfigEditor&) {});
    EXPECT_EQ(addIn.refreshes, 0);
}

TEST_F(EditorOptions, DecideWhetherDeletingAsks) {
    configure([](FConfigEditor& dialog) { dialog.chkDelQuestion->click(); });
    EXPECT_EQ(option("RequestOnDelete"), Variant(false));
    show(mixKey);
    selectRows({0});
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers().size(), 5U);
}

TEST_F(EditorOptions, HideTheStatusLineAndDisableTheStatisticAtTheNextSwitch) {
    const double before = grid().height();
    configure([](FConfigEditor& dialog) { dialog.chkShowStatusBar->click(); });
    EXPECT_FALSE(window->sb->visible());
    EXPECT_EQ(grid().height(), before + window->sb->height());
    EXPECT_TRUE(tool("mnuOptionStatistik").enabled());
    window->MenuSwitcher("RCPE0", false);
    EXPECT_FALSE(tool("mnuOptionStatistik").enabled());
}

TEST_F(EditorOptions, GiveWindowAndGridTheChosenFont) {
    host.script.onFont = [](forms::Font::Values& font) {
        font.name = "Courier";
        font.size = 12;
        return true;
    };
    configure([](FConfigEditor& dialog) { dialog.cmdEditorFont->click(); });
    for (const forms::Font* font : {&window->font(), &grid().font()}) {
        EXPECT_EQ(font->name(), "Courier");
        EXPECT_EQ(font->size(), 12);
    }
}

TEST_F(EditorOptions, WithoutSavingWriteThatOneEntryWhenTheWindowCloses) {
    configure([](FConfigEditor& dialog) { dialog.chkSaveOnExit->click(); });
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(host.iniFile.bytes(iniPath), "[frmtabGridRCP]\r\nSaveOnExit=False\r\n");
}

TEST_F(EditorOptions, CancelledChangeNothing) {
    inDialog<FConfigEditor>("FConfigEditor", [](FConfigEditor& dialog) {
        dialog.chkDelQuestion->click();
        dialog.chkShowStatusBar->click();
        dialog.cmdCancel->click();
    });
    click("mnuOptionOption");
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(option("RequestOnDelete"), Variant(true));
    EXPECT_TRUE(window->sb->visible());
}

}  // namespace
}  // namespace hx::editor
