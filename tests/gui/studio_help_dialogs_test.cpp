// SPDX-License-Identifier: MIT
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/screen/tool_tips.h"
#include "gui/studio_fixture.h"
#include "studio/about_dialog.h"
#include "studio/options.h"
#include "studio/shortcut_list.h"

namespace hx::gui {
namespace {

/// The dialogs of the menu Help.
class StudioHelpDialogs : public StudioTest {
  protected:
    [[nodiscard]] QAction& action(const char* name) { return find<QAction>(window(), name); }
    [[nodiscard]] static QString shown(const QKeySequence& key) { return key.toString(QKeySequence::NativeText); }
};

TEST_F(StudioHelpDialogs, AboutNamesVersionsAndLicencesAndCopiesThem) {
    start();
    const NextModal<studio::AboutDialog> next([](studio::AboutDialog& dialog) {
        QString said;
        for (const QLabel* label : dialog.findChildren<QLabel*>()) said += label->text() + '\n';
        for (const QString& wanted : {studio::versionText(), QString("Lizenz: MIT"), QString("Qt ") + qVersion(),
                                      QString("SQLite 3."), QString("Lua 5.4"), QString("LGPL")})
            EXPECT_TRUE(said.contains(wanted)) << wanted.toStdString();
        find<QPushButton>(dialog, "copyAbout").click();
        dialog.reject();
    });
    action("actionAbout").trigger();
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith(studio::versionText() + "\nQt ")) << copied.toStdString();
}

TEST_F(StudioHelpDialogs, AllKeysAreListedAndCanBeSearched) {
    start();
    const NextModal<studio::ShortcutList> next([this](studio::ShortcutList& dialog) {
        const auto& list = find<QTreeWidget>(dialog, "shortcuts");
        QSet<QString> keys;
        QStringList groups;
        for (int group = 0; group < list.topLevelItemCount(); ++group) {
            const QTreeWidgetItem& top = *list.topLevelItem(group);
            groups << top.text(0);
            for (int row = 0; row < top.childCount(); ++row)
                for (const QString& key : top.child(row)->text(0).split(", ")) keys << key;
        }
        // Every key that an action of the window has, and the editor's.
        for (const QAction* one : window().findChildren<QAction*>()) {
            if (!one->isVisible() || one->shortcutContext() == Qt::WidgetShortcut) continue;
            for (const QKeySequence& key : one->shortcuts())
                EXPECT_TRUE(keys.contains(shown(key))) << one->text().toStdString() << " " << shown(key).toStdString();
        }
        EXPECT_TRUE(groups.contains("Im Gitter")) << groups.join('|').toStdString();
        EXPECT_TRUE(keys.contains("F8"));
        type(find<QLineEdit>(dialog, "shortcutFilter"), "rückgängig -letzte");
        QStringList left;
        for (int group = 0; group < list.topLevelItemCount(); ++group) {
            const QTreeWidgetItem& top = *list.topLevelItem(group);
            for (int row = 0; row < top.childCount() && !top.isHidden(); ++row)
                if (!top.child(row)->isHidden()) left << top.child(row)->text(0);
        }
        EXPECT_EQ(left, QStringList{shown(QKeySequence(Qt::CTRL | Qt::Key_Z))});
        dialog.reject();
    });
    action("actionShortcuts").trigger();
}

TEST_F(StudioHelpDialogs, ToolTipsNameKeysAndWhatIsCutOff) {
    start();
    open(makeProject());
    click("Rezepte");
    QToolButton button;
    button.setDefaultAction(&action("actionUndo"));
    EXPECT_TRUE(qt::ToolTips::textAt(button, {}).endsWith('(' + shown(QKeySequence(Qt::CTRL | Qt::Key_Z)) + ')'));
    QPushButton push("&Weiter");
    EXPECT_EQ(qt::ToolTips::textAt(push, {}), "Weiter (Alt+W)");
    const QPoint place = tree().visualRect(node("Rezepte/Meyer's Bräu")).center();
    find<QDockWidget>(window(), "explorerDock").setMinimumWidth(400);
    handleEvents();
    EXPECT_EQ(qt::ToolTips::textAt(*tree().viewport(), place), QString());
    tree().setFixedWidth(60);
    handleEvents();
    const QRect rect = tree().visualRect(node("Rezepte/Meyer's Bräu"));
    EXPECT_EQ(qt::ToolTips::textAt(*tree().viewport(), {50, rect.center().y()}), "Meyer's Bräu");
    qt::PlainLabel label;
    label.setText("Ein langer Text, der nicht ganz zu sehen ist");
    label.resize(40, 20);
    EXPECT_EQ(qt::ToolTips::textAt(label, {}), label.text());
    label.resize(2000, 20);
    EXPECT_EQ(qt::ToolTips::textAt(label, {}), QString());
}

}  // namespace
}  // namespace hx::gui
