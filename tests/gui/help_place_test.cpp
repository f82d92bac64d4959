// SPDX-License-Identifier: MIT
#include <QDialog>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

#include "adapters/qt/help/help_window.h"
#include "adapters/qt/help/qt_help_viewer.h"
#include "dialogs/fconfig_editor.h"
#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

class HelpPlaceTest : public DialogFixture {
  protected:
    qt::QtHelpViewer viewer{screen, windows, wording};

    /// Opens the help for a dialog, and tells where both lie.
    void expectBeside(forms::Form& dialog) {
        showDuring(dialog, [&](QWidget& window) {
            viewer.showContext(dialog.handle(), HX_MODULE_FOLDER "/help/de/Rezeptsystem.chm", dialog.helpContextId());
            handleEvents();
            const QRect shown = viewer.window()->frameGeometry(), explained = window.frameGeometry();
            const QRect free = window.screen()->availableGeometry();
            EXPECT_TRUE(viewer.window()->isVisible());
            EXPECT_FALSE(shown.intersects(explained)) << dialog.name();
            EXPECT_TRUE(free.contains(shown)) << dialog.name();
            EXPECT_TRUE(free.contains(explained)) << dialog.name();
        });
    }
};

TEST_F(HelpPlaceTest, TheHelpLeavesTheDialogThatItExplainsInSight) {
    expectBeside(*std::make_shared<dialogs::FRecipe>(services, texts, help));
    expectBeside(*std::make_shared<dialogs::FSubRecipe>(services, texts, help));
    expectBeside(*std::make_shared<dialogs::FConfigEditor>(services, help));
}

TEST_F(HelpPlaceTest, HelpThatIsOpenAlreadyGivesWayToADialog) {
    viewer.showContext(0, HX_MODULE_FOLDER "/help/de/Rezeptsystem.chm", resources::help_context::overview);
    handleEvents();
    expectBeside(*std::make_shared<dialogs::FRecipe>(services, texts, help));
}

TEST_F(HelpPlaceTest, ANarrowHelpShowsTheTopicAlone) {
    viewer.showContext(0, HX_MODULE_FOLDER "/help/de/Rezeptsystem.chm", resources::help_context::overview);
    auto& tabs = find<QTabWidget>(*viewer.window(), "helpTabs");
    viewer.window()->resize(700, 500);
    handleEvents();
    EXPECT_TRUE(tabs.isVisible());
    viewer.window()->resize(400, 500);
    handleEvents();
    EXPECT_FALSE(tabs.isVisible());
    EXPECT_EQ(viewer.window()->width(), 400);
    viewer.window()->resize(700, 500);
    handleEvents();
    EXPECT_TRUE(tabs.isVisible());
}

}  // namespace
}  // namespace hx::gui
