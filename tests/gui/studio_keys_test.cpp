// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QDockWidget>
#include <QFileDialog>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>
#include <map>

#include "adapters/qt/text.h"
#include "gui/dialog_fixture.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

/// The keys of the studio and of the editor in it.
class StudioKeysTest : public StudioTest {
  protected:
    void startEditor(std::int32_t language = qt::Wording::german) {
        start();
        window().chooseLanguage(language);
        open(makeProject(root(language)));
        click(root(language));
        find<QDockWidget>(window(), "macroDock").show();
        handleEvents();
    }
    static QString root(std::int32_t language) { return language == qt::Wording::german ? "Rezepte" : "Recipes"; }

    /// What Alt and a letter can reach in the window, by the letter.
    [[nodiscard]] std::map<QString, QStringList> accessKeys() {
        std::map<QString, QStringList> keys;
        const auto add = [&](const QString& text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (!key.isEmpty()) keys[key].append(text);
        };
        for (const QMenuBar* bar : window().findChildren<QMenuBar*>()) {
            for (const QAction* action : bar->actions()) add(action->text());
        }
        for (const QLabel* label : window().findChildren<QLabel*>()) {
            if (label->buddy() != nullptr) add(label->text());
        }
        for (const QAbstractButton* button : window().findChildren<QAbstractButton*>()) add(button->text());
        return keys;
    }
    /// Whether Ctrl+O, pressed in this widget, asks for a project.
    [[nodiscard]] bool opens(QWidget& widget) {
        EXPECT_TRUE(activate(window()));  // no window manager does it when a dialog has gone
        widget.setFocus();
        EXPECT_TRUE(widget.hasFocus()) << qt::fromQt(widget.objectName());
        bool asked = false;
        inNextModal<QFileDialog>([&](QFileDialog& dialog) {
            asked = dialog.objectName() == "openProjectDialog";
            dialog.reject();
        });
        QTest::keyClick(&widget, Qt::Key_O, Qt::ControlModifier);
        handleEvents();
        return asked;
    }
};

TEST_F(StudioKeysTest, NoLetterIsAnAccessKeyTwiceInEitherLanguage) {
    for (const std::int32_t language : {qt::Wording::german, qt::Wording::english}) {
        startEditor(language);
        const auto keys = accessKeys();
        EXPECT_GE(keys.size(), 9u);
        for (const auto& [key, texts] : keys) {
            EXPECT_EQ(texts.size(), 1) << qt::fromQt(key) << ": " << qt::fromQt(texts.join(" | "));
        }
        quit();
    }
}

TEST_F(StudioKeysTest, AltMOpensTheMembersOfARecipeInEnglish) {
    startEditor(qt::Wording::english);
    click("Recipes/Limonade");
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_M, Qt::AltModifier);
    ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuRecipeMembers");
    QApplication::activePopupWidget()->close();
}

TEST_F(StudioKeysTest, ControlOOpensAProjectWhereverTheKeyboardIs) {
    startEditor();
    click("Rezepte/Limonade");
    EXPECT_TRUE(opens(tree()));
    EXPECT_TRUE(opens(grid()));
    EXPECT_TRUE(opens(find<QLineEdit>(window(), "macroArguments")));
    EXPECT_TRUE(opens(find<QPlainTextEdit>(window(), "macroText")));
    EXPECT_TRUE(activate(window()));
    EXPECT_TRUE(opens(typeInCell(0, "Variable", "Neu")));
    EXPECT_EQ(texts("Variable")[0], "Neu");
}

}  // namespace
}  // namespace hx::gui
