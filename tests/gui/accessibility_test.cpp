// SPDX-License-Identifier: MIT
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QTabBar>
#include <QTest>

#include "gui/find_fixture.h"

namespace hx::gui {
namespace {

bool isToolkits(const QWidget& widget) { return widget.objectName().startsWith("qt_"); }

/// What a screen reader could not tell of a window: the controls that take the keyboard or the mouse and have no name,
/// or no role.
QStringList untold(const QWidget& window) {
    QStringList untold;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->focusPolicy() == Qt::NoFocus || isToolkits(*widget)) continue;
        if (widget->focusProxy() != nullptr || widget->isWindow()) continue;
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
        const QString what = QString::fromLatin1(widget->metaObject()->className()) + ' ' + widget->objectName();
        if (told == nullptr) {
            untold << what + ": no interface";
            continue;
        }
        // The tabs of a row have names, the row of the docks' tabs has none.
        const bool isTabs = qobject_cast<QTabBar*>(widget) != nullptr;
        for (int tab = 0; isTabs && tab < told->childCount(); ++tab) {
            QAccessibleInterface* const one = told->child(tab);
            if (one != nullptr && one->role() == QAccessible::PageTab && one->text(QAccessible::Name).isEmpty())
                untold << what + ": tab without a name";
        }
        if (!isTabs && told->text(QAccessible::Name).trimmed().isEmpty()) untold << what + ": no name";
        // What draws pages is an area of the window for all that is told of it; its name says what it shows.
        const bool isArea =
            told->role() == QAccessible::Client && qobject_cast<QAbstractScrollArea*>(widget) == nullptr;
        if (told->role() == QAccessible::NoRole || isArea) untold << what + ": no role";
    }
    return untold;
}

class Accessibility : public StudioFind {
  protected:
    void expectTold(const QWidget& window, const char* name) {
        EXPECT_EQ(untold(window).join('\n').toStdString(), "") << name;
    }
    /// Of the dialog that an action opens, which is cancelled.
    void expectDialogTold(const char* name, const std::function<void()>& open) {
        const NextModal<QWidget> next([this, name](QWidget& dialog) {
            expectTold(dialog, name);
            EXPECT_FALSE(dialog.windowTitle().isEmpty()) << name;
            dialog.close();
        });
        open();
        handleEvents();
    }
    void expectActionTold(const char* name) {
        expectDialogTold(name, [&] {
            ASSERT_TRUE(action(name).isEnabled()) << name;
            action(name).trigger();
        });
    }
    void clickTool(const char* name) {
        const automation::Variant tool{std::string(name)};
        (void)host()
            .attendedScreen()
            .find("frmtabgrid")
            ->get("abr")
            .asObject()
            ->get("Click", automation::Args(&tool, 1));
    }
};

TEST_F(Accessibility, TheWindowAndItsDocksTellWhatTheirControlsAre) {
    QDir(folder.path()).mkpath("config");  // as the program does
    start();
    expectTold(window(), "without a project");
    quit();
    showMembers();
    for (QDockWidget* dock : window().findChildren<QDockWidget*>()) dock->show();
    find<QCheckBox>(window(), "replacing").click();
    handleEvents();
    expectTold(window(), "with everything open");
    find<QAction>(window(), "actionEnglish").trigger();
    handleEvents();
    expectTold(window(), "in English");
    find<QAction>(window(), "actionVariables").trigger();
    handleEvents();
    expectTold(window(), "with the variable list");
}

TEST_F(Accessibility, TheStudiosDialogsTellWhatTheirControlsAre) {
    showMembers();
    for (const char* name : {"actionAbout", "actionShortcuts", "actionNew", "actionSeries", "actionNewVariable"})
        expectActionTold(name);
}

TEST_F(Accessibility, TheEditorsDialogsTellWhatTheirControlsAre) {
    showMembers();
    for (const char* tool : {"mnuRecipeEdit", "mnuRecipeMemberNewVariable", "mnuOptionOption"})
        expectDialogTold(tool, [&] { clickTool(tool); });
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    expectDialogTold("mnuRecipeMemberNewRecipe", [&] { clickTool("mnuRecipeMemberNewRecipe"); });
    click("Rezepte/Meyer's Bräu");
    expectDialogTold("mnuOptionReport", [&] { clickTool("mnuOptionReport"); });
}

}  // namespace
}  // namespace hx::gui
