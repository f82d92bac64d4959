// SPDX-License-Identifier: MIT
#include <QAction>
#include <QTest>
#include <QTimer>

#include "adapters/qt/help/help_window.h"
#include "adapters/qt/help/qt_help_viewer.h"
#include "adapters/qt/text.h"
#include "gui/help_contents.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

class StudioHelpTest : public StudioTest {
  protected:
    /// F1 at a node; the title of the help that it opens.
    std::string helpAt(const QString& path) {
        click(path);
        tree().setFocus();
        QTest::keyClick(&tree(), Qt::Key_F1);
        handleEvents();
        const qt::HelpWindow* help = host().help().window();
        return help == nullptr || !help->isVisible() ? "no help" : qt::fromQt(help->windowTitle());
    }
};

TEST_F(StudioHelpTest, F1AtANodeOpensItsTopic) {
    start();
    open(makeProject());
    click("Rezepte");
    EXPECT_EQ(helpAt("Rezepte"), "Rezepte - Hilfe zum Rezeptsystem");
    EXPECT_EQ(helpAt("Rezepte/Limonade"), "Ein Rezept - Hilfe zum Rezeptsystem");
    EXPECT_EQ(helpAt("Rezepte/Limonade/Unterrezepte"), "Unterrezepte - Hilfe zum Rezeptsystem");
}

TEST_F(StudioHelpTest, TheHelpSpeaksTheLanguageOfTheStudio) {
    start();
    window().chooseLanguage(qt::Wording::english);
    open(makeProject());
    click("Recipes");
    EXPECT_EQ(helpAt("Recipes/Limonade/Sub Recipes"), "Sub-Recipes - Recipe System Help");
}

TEST_F(StudioHelpTest, F1InTheRecipeDialogOpensItsTopicBesideIt) {
    start();
    open(makeProject());
    click("Rezepte");
    click("Rezepte/Limonade");
    tree().setFocus();
    std::string title;
    const NextModal<QWidget> next([&](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "FRecipe");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_F1);
        handleEvents();
        if (host().help().window() != nullptr) {
            title = qt::fromQt(host().help().window()->windowTitle());
            clickContents(*host().help().window(), "Tasten");
        }
        EXPECT_TRUE(activate(dialog));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QTest::keyClick(&tree(), Qt::Key_F9);
    handleEvents();
    EXPECT_EQ(title, "Rezeptdefinition - Hilfe zum Rezeptsystem");
    ASSERT_NE(host().help().window(), nullptr);
    EXPECT_TRUE(host().help().window()->isVisible());
    EXPECT_EQ(host().help().window()->windowTitle(), "Tasten - Hilfe zum Rezeptsystem");
}

TEST_F(StudioHelpTest, TheHelpClosesWithTheEditor) {
    start();
    open(makeProject());
    click("Rezepte");
    EXPECT_NE(helpAt("Rezepte"), "no help");
    window().closeProject();
    EXPECT_EQ(host().help().window(), nullptr);
}

TEST_F(StudioHelpTest, TheMenuShowsTheFirstTopicWithoutAProject) {
    start();
    auto* entry = window().findChild<QAction*>("actionHelp");
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    handleEvents();
    ASSERT_NE(host().help().window(), nullptr);
    EXPECT_EQ(host().help().window()->windowTitle(), "Das Rezeptsystem im Überblick - Hilfe zum Rezeptsystem");
    quit();
}

}  // namespace
}  // namespace hx::gui
