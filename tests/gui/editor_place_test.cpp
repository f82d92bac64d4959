// SPDX-License-Identifier: MIT
#include <QMdiSubWindow>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTest>

#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

/// Where the studio and the editor in it lie.
class EditorPlaceTest : public StudioMacroTest {
  protected:
    void startEditor() {
        start();
        file_ = makeProject();
        open(file_);
        click("Rezepte");
    }
    void openAgain() {
        open(file_);
        click("Rezepte");
    }
    [[nodiscard]] std::string setting(const QString& key) {
        const QSettings settings(folder.filePath("HXEditors.ini"), QSettings::IniFormat);
        return settings.value("frmtabGridRCP/" + key).toString().toStdString();
    }
    void store(const QString& key, const QString& value) {
        QSettings(folder.filePath("HXEditors.ini"), QSettings::IniFormat).setValue("frmtabGridRCP/" + key, value);
    }

  private:
    QString file_;
};

TEST_F(EditorPlaceTest, APlaceGivenToTheMaximisedEditorStaysTheOneThatWasGiven) {
    startEditor();
    ASSERT_TRUE(editorWindow()->isMaximized());
    EXPECT_EQ(run("for i = 1, 3 do editor.PosLeft = 600 editor.PosTop = 450 print(editor.PosLeft, editor.PosTop) end"),
              "600.0\t450.0\n600.0\t450.0\n600.0\t450.0\n");
    window().closeProject();
    EXPECT_EQ(setting("Me.PosLeft"), "600");
    EXPECT_EQ(setting("Me.PosTop"), "450");
    EXPECT_EQ(setting("Me.WindowState"), "2");
    openAgain();
    editorWindow()->showNormal();
    handleEvents();
    EXPECT_EQ(editorWindow()->pos(), QPoint(40, 30));
}

TEST_F(EditorPlaceTest, TheNormalSizeOutlivesAResizeOfTheStudioWhileTheEditorIsMaximised) {
    startEditor();
    editorWindow()->showNormal();
    handleEvents();
    editorWindow()->setGeometry(20, 10, 420, 310);
    editorWindow()->showMaximized();
    window().resize(900, 640);
    handleEvents();
    window().resize(760, 560);
    handleEvents();
    window().closeProject();
    EXPECT_EQ(setting("Me.Width"), "6300");
    EXPECT_EQ(setting("Me.Height"), "4650");
    openAgain();
    window().resize(800, 600);
    handleEvents();
    editorWindow()->showNormal();
    handleEvents();
    EXPECT_EQ(editorWindow()->geometry(), QRect(20, 10, 420, 310));
}

TEST_F(EditorPlaceTest, AnEditorThatWasStoredOutsideTheWindowIsBroughtIntoView) {
    startEditor();
    window().closeProject();
    store("Me.WindowState", "0");
    store("Me.PosLeft", "30000");
    store("Me.PosTop", "-9000");
    openAgain();
    EXPECT_FALSE(editorWindow()->isMaximized());
    EXPECT_TRUE(documents().viewport()->rect().contains(editorWindow()->geometry()));
}

TEST_F(EditorPlaceTest, TheFirstWindowLiesInTheScreenWithItsFrame) {
    start();
    handleEvents();
    // On Windows the frame of a maximised window lies around the screen.
    const QRect seen = window().isMaximized() ? window().geometry() : window().frameGeometry();
    EXPECT_TRUE(window().screen()->availableGeometry().contains(seen));
    EXPECT_TRUE(window().statusBar()->isVisible());
    window().showNormal();
    handleEvents();
    EXPECT_LE(window().frameGeometry().height(), window().screen()->availableGeometry().height());
    EXPECT_LE(window().frameGeometry().width(), window().screen()->availableGeometry().width());
}

}  // namespace
}  // namespace hx::gui
