// SPDX-License-Identifier: MIT
#include <QAction>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QToolButton>

#include "adapters/qt/text.h"
#include "gui/studio_fixture.h"
#include "studio/new_project_dialog.h"
#include "studio/sample_project.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// How the studio begins, and how it goes on where it was left.
class StudioStart : public StudioTest {
  protected:
    [[nodiscard]] QWidget& page() { return find<QWidget>(window(), "startPage"); }
    [[nodiscard]] QListWidget& recent() { return find<QListWidget>(window(), "recentProjects"); }
    [[nodiscard]] QAction& action(const char* name) { return find<QAction>(window(), name); }
    void startAgain() {
        quit();
        start();
        window().reopenLast();
        handleEvents();
    }
};

TEST_F(StudioStart, ShowsAStartPageWhileNoProjectIsOpen) {
    start();
    EXPECT_TRUE(page().isVisible());
    QStringList offered;
    for (const QToolButton* button : page().findChildren<QToolButton*>()) offered << button->text();
    offered.removeAll("Beispielprojekt");  // is there when the sample has been built
    EXPECT_EQ(offered.join('|').toStdString(), "Neues Projekt …|Öffnen …|Hilfe zum Rezeptsystem");
    EXPECT_FALSE(recent().isVisible());
    open(makeProject());
    EXPECT_FALSE(page().isVisible());
    EXPECT_TRUE(documents().isVisible());
    window().closeProject();
    EXPECT_TRUE(page().isVisible());
    ASSERT_EQ(recent().count(), 1);
    EXPECT_EQ(recent().item(0)->text().section('\n', 0, 0), "Anlage");
    EXPECT_TRUE(recent().hasFocus());
}

TEST_F(StudioStart, ARecentProjectOpensByMouseAndByKeyboard) {
    start();
    const QString one = makeProject("Eins");
    open(one);
    open(makeProject("Zwei"));
    window().closeProject();
    const QRect second = recent().visualItemRect(recent().item(1));
    QTest::mouseClick(recent().viewport(), Qt::LeftButton, {}, second.center());
    handleEvents();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Eins");
    window().closeProject();
    recent().setFocus();
    recent().setCurrentRow(1);
    QTest::keyClick(&recent(), Qt::Key_Return);
    handleEvents();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Zwei");
}

TEST_F(StudioStart, AProjectCanBeTakenOffTheList) {
    start();
    open(makeProject("Eins"));
    open(makeProject("Zwei"));
    window().closeProject();
    recent().setFocus();
    recent().setCurrentRow(0);
    QTest::keyClick(&recent(), Qt::Key_Delete);
    ASSERT_EQ(recent().count(), 1);
    EXPECT_EQ(recent().item(0)->text().section('\n', 0, 0), "Eins");
}

TEST_F(StudioStart, ANewProjectAsksForNameAndFolderAndOpensTheBranch) {
    start();
    const QString inFolder = folder.filePath("Neue Linie");
    const NextModal<studio::NewProjectDialog> next([&](studio::NewProjectDialog& dialog) {
        auto& create = find<QPushButton>(dialog, "createProject");
        EXPECT_FALSE(create.isEnabled());
        type(find<QLineEdit>(dialog, "projectName"), "Füller; 1");
        find<QLineEdit>(dialog, "projectFolder").setText(inFolder);
        EXPECT_FALSE(create.isEnabled());
        EXPECT_TRUE(find<QLabel>(dialog, "newProjectState").text().startsWith("Name und Ordner eines Projekts"));
        find<QLineEdit>(dialog, "projectName").setText("Füller 1");
        EXPECT_TRUE(create.isEnabled());
        create.click();
    });
    action("actionNew").trigger();
    handleEvents();
    EXPECT_TRUE(window().windowTitle().startsWith("HelvixStudio - Füller 1"));
    EXPECT_TRUE(QFile::exists(inFolder + "/Füller 1.hxs"));
    ASSERT_NE(editorWindow(), nullptr);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte"));
}

TEST_F(StudioStart, TheSampleOpensAsACopyThatIsTheUsers) {
    QDir(folder.path()).mkpath("samples");
    QFile::rename(makeProject("Getraenkelinie"), folder.filePath("samples/Getraenkelinie.hxs"));
    QFile::remove(studio::copyOfSample());
    start(folder.path());
    ASSERT_TRUE(action("actionSample").isVisible());
    const BoxAnswers noAddIn({"OK"});
    action("actionSample").trigger();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Getraenkelinie");
    EXPECT_EQ(stored(studio::copyOfSample(), 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    store(studio::copyOfSample(), 1, "Eigenes");
    window().closeProject();
    const BoxAnswers noAddInAgain({"OK"});
    action("actionSample").trigger();
    EXPECT_EQ(stored(studio::copyOfSample(), 1).size(), 3U);
    quit();
    QFile::remove(studio::copyOfSample());
}

TEST_F(StudioStart, GoesOnWhereItWasLeft) {
    startAtMembers();
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    grid().setCurrentIndex(grid().model()->index(1, column("Dateiname")));
    action("actionSortByName").trigger();
    find<QLineEdit>(window(), "explorerFilter").setText("m");
    auto& problems = find<QDockWidget>(window(), "problemsDock");
    problems.show();
    auto& list = find<QTreeView>(window(), "problemsList");
    list.setColumnWidth(0, 321);
    startAgain();
    EXPECT_TRUE(window().windowTitle().startsWith("HelvixStudio - Anlage"));
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Meyer's Bräu");
    EXPECT_EQ(find<QLineEdit>(window(), "explorerFilter").text(), "m");
    EXPECT_TRUE(action("actionSortByName").isChecked());
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
    EXPECT_EQ(grid().currentIndex().row(), 1);
    EXPECT_TRUE(find<QDockWidget>(window(), "problemsDock").isVisible());
    EXPECT_EQ(find<QTreeView>(window(), "problemsList").columnWidth(0), 321);
}

TEST_F(StudioStart, BeginsWithoutAProjectWhenItWasLeftSoOrIsToldTo) {
    start();
    const QString file = makeProject();
    open(file);
    window().closeProject();
    startAgain();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio");
    open(file);
    ASSERT_TRUE(action("actionReopen").isChecked());
    action("actionReopen").trigger();
    startAgain();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio");
    action("actionReopen").trigger();
    open(file);
    quit();
    QFile::remove(file);
    start();
    window().reopenLast();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio");
}

}  // namespace
}  // namespace hx::gui
