// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <array>

#include "adapters/qt/choosers/item_dialog.h"
#include "adapters/sqlite/provider.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// Acts on the window that comes next, a dialog or a menu, while it lives; the window is then closed by Esc.
class NextWindow {
  public:
    explicit NextWindow(std::function<void(QWidget&)> action) : action_(std::move(action)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(10);
    }
    [[nodiscard]] bool came() const { return came_; }

  private:
    void look() {
        QWidget* menu = QApplication::activePopupWidget();
        QWidget* window = menu == nullptr ? QApplication::activeModalWidget() : menu;
        if (window == nullptr || !window->isVisible()) return;
        timer_.stop();
        came_ = true;
        action_(*window);
        if (window->isVisible()) QTest::keyClick(window, Qt::Key_Escape);
    }
    std::function<void(QWidget&)> action_;
    QTimer timer_;
    bool came_ = false;
};

/// The member grid of the real editor in the studio, with the variables "Mischer.Ein" and "Mischer.Zucker".
class GridCommands : public StudioTest {
  protected:
    QString file;

    void showMembers(const QString& path) {
        start();
        file = makeProject();
        addVariables();
        open(file);
        click("Rezepte");
        click(path);
        grid().setFocus();
    }
    [[nodiscard]] QRect cell(int row, const QString& caption) {
        return grid().visualRect(grid().model()->index(row, column(caption)));
    }
    void clickCell(int row, const QString& caption, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid().viewport(), button, {}, cell(row, caption).topLeft() + QPoint(10, 5));
    }
    void selectRow(int row) {
        QHeaderView& selector = *grid().verticalHeader();
        QTest::mouseClick(selector.viewport(), Qt::LeftButton, {},
                          QPoint(5, selector.sectionViewportPosition(row) + 5));
    }
    /// Opens the editor of the current cell and types another text.
    QLineEdit& typeInto(const QString& text) {
        QTest::keyClick(&grid(), Qt::Key_F2);
        auto& line = find<QLineEdit>(grid(), "cellEditor");
        line.selectAll();
        type(line, text);
        return line;
    }
    /// Presses a key where the keyboard is; `action` acts on the window that it opens. True when one came.
    bool pressFor(Qt::Key key, Qt::KeyboardModifiers modifiers, std::function<void(QWidget&)> action) {
        const NextWindow next(std::move(action));
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        handleEvents();
        return next.came();
    }

  private:
    void addVariables() const {
        sqlite::Provider provider;
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + file.toStdString() + ";Mode=Read|Write|Share Deny None;");
        ado::Recordset variables;
        variables.open("ThxVariable", connection);
        for (const char* name : {"Mischer.Ein", "Mischer.Zucker"}) {
            variables.addNew(std::array{std::pair<std::string, automation::Variant>("Name", name)});
        }
        variables.close();
        connection->close();
    }
};

std::string selectedIn(QWidget& window) {
    const auto* dialog = dynamic_cast<qt::ItemDialog*>(&window);
    return dialog == nullptr ? "no choice of a variable" : dialog->selected().toStdString();
}

TEST_F(GridCommands, F9PutsTheChosenVariableIntoTheCell) {
    showMembers("Rezepte/Limonade");
    clickCell(0, "Variable");
    std::string preset;
    EXPECT_TRUE(pressFor(Qt::Key_F9, {}, [&](QWidget& dialog) {
        preset = selectedIn(dialog);
        QTest::keyClick(&find<QTableView>(dialog, "itemList"), Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(&dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(preset, "Mischer.Zucker");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Ein", "Mischer.Wasser"}));
    EXPECT_EQ(window().focusWidget(), &grid());
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Ein", "Mischer.Wasser"}));
}

TEST_F(GridCommands, F9InAnOpenEditorStartsFromWhatIsBeingTypedAndKeepsIt) {
    showMembers("Rezepte/Limonade");
    clickCell(1, "Variable");
    typeInto("Mischer.Ein");
    std::string preset;
    EXPECT_TRUE(pressFor(Qt::Key_F9, {}, [&](QWidget& dialog) {
        preset = selectedIn(dialog);
        handleEvents();
    }));
    EXPECT_EQ(preset, "Mischer.Ein");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Ein"}));
    QTest::keyClick(&grid(), Qt::Key_Up);
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Ein"}));
}

TEST_F(GridCommands, SpaceBehindWhatIsBeingTypedStartsFromIt) {
    showMembers("Rezepte/Limonade");
    clickCell(1, "Variable");
    typeInto("Mischer.Ein");
    std::string preset;
    EXPECT_TRUE(pressFor(Qt::Key_Space, {}, [&](QWidget& dialog) { preset = selectedIn(dialog); }));
    EXPECT_EQ(preset, "Mischer.Ein");
    EXPECT_EQ(texts("Variable")[1], "Mischer.Ein");
}

TEST_F(GridCommands, F8OpensTheVariablesOfTheRecipe) {
    showMembers("Rezepte/Limonade");
    std::string title;
    EXPECT_TRUE(pressFor(Qt::Key_F8, {}, [&](QWidget& dialog) { title = dialog.objectName().toStdString(); }));
    EXPECT_EQ(title, "FMultiSelectItems");
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(GridCommands, F8InAnOpenEditorStoresWhatIsBeingTypedFirst) {
    showMembers("Rezepte/Limonade");
    clickCell(0, "Variable");
    typeInto("Mischer.Ein");
    EXPECT_TRUE(pressFor(Qt::Key_F8, {}, [](QWidget&) { handleEvents(); }));
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Ein", "Mischer.Wasser"}));
    EXPECT_EQ(texts("Variable")[0], "Mischer.Ein");
}

TEST_F(GridCommands, ControlDeleteDeletesTheSelectedRows) {
    showMembers("Rezepte/Limonade");
    selectRow(0);
    const BoxAnswers answers({"Ja"});
    QTest::keyClick(&grid(), Qt::Key_Delete, Qt::ControlModifier);
    handleEvents();
    EXPECT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(stored(file, 1), Texts{"Mischer.Wasser"});
    EXPECT_EQ(texts("Variable"), Texts{"Mischer.Wasser"});
}

TEST_F(GridCommands, ControlDeleteInAnOpenEditorKeepsWhatIsBeingTypedWhenItIsNotConfirmed) {
    showMembers("Rezepte/Limonade");
    selectRow(1);
    QLineEdit& line = typeInto("Mischer.Ein");
    const BoxAnswers answers({"Nein"});
    QTest::keyClick(&line, Qt::Key_Delete, Qt::ControlModifier);
    handleEvents();
    EXPECT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Ein"}));
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Ein"}));
}

TEST_F(GridCommands, TheRightButtonOpensTheMenuOfTheMembers) {
    showMembers("Rezepte/Limonade");
    Texts entries;
    const NextWindow next([&](QWidget& window) {
        const auto* menu = qobject_cast<QMenu*>(&window);
        ASSERT_NE(menu, nullptr);
        for (const QAction* action : menu->actions()) {
            const std::string text = action->text().section('\t', 0, 0).toStdString();
            entries.push_back((action->isEnabled() ? "" : "-") + text);
        }
    });
    clickCell(1, "Variable", Qt::RightButton);
    handleEvents();
    ASSERT_TRUE(next.came());
    EXPECT_EQ(entries,
              (Texts{"-Rezeptelement", "&Variablen hinzufügen/löschen        ", "-&Löschen", "", "Editor anzeigen"}));
    EXPECT_EQ(grid().currentIndex().row(), 1);
}

TEST_F(GridCommands, TheRightButtonOpensTheMenuOfTheMembersOverAnOpenEditorToo) {
    showMembers("Rezepte/Limonade");
    clickCell(1, "Variable");
    QLineEdit& line = typeInto("Mischer.Ein");
    Texts menus;
    const NextWindow next([&](QWidget& menu) {
        for (const QAction* action : menu.actions()) menus.push_back(action->objectName().toStdString());
    });
    const QPoint point = line.rect().center();
    QTest::mousePress(&line, Qt::RightButton, {}, point);
    QContextMenuEvent request(QContextMenuEvent::Mouse, point, line.mapToGlobal(point));
    QApplication::sendEvent(&line, &request);
    QTest::mouseRelease(&line, Qt::RightButton, {}, point);
    handleEvents();
    ASSERT_TRUE(next.came());
    EXPECT_THAT(menus, testing::Contains("mnuRecipeMemberNewVariable"));
    clickCell(0, "Variable");
    handleEvents();
    EXPECT_EQ(texts("Variable")[1], "Mischer.Ein") << "what was typed is kept";
}

TEST_F(GridCommands, AnEditorThatEndsUnderItsMenuOpensNoSecondMenu) {
    showMembers("Rezepte/Limonade");
    clickCell(1, "Variable");
    const QPointer<QLineEdit> line = &typeInto("Mischer.Ein");
    int menus = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        QWidget* menu = QApplication::activePopupWidget();
        if (menu == nullptr) return;
        ++menus;
        clickCell(0, "Variable");
        handleEvents();
        EXPECT_TRUE(line.isNull());
        menu->close();
    });
    closer.start(5);
    QTest::mouseClick(line, Qt::RightButton, {}, line->rect().center());
    handleEvents();
    EXPECT_EQ(menus, 1);
    EXPECT_EQ(texts("Variable")[1], "Mischer.Ein");
}

TEST_F(GridCommands, ShiftLeftAndRightLeaveAnOpenEditorForTheNeighbouringColumn) {
    showMembers("Rezepte/Meyer's Bräu/Unterrezepte");
    clickCell(0, "Dateiname");
    QLineEdit& line = typeInto("Mischer.Ein");
    const int column = grid().currentIndex().column();
    QTest::keyClick(&line, Qt::Key_Right, Qt::ShiftModifier);
    handleEvents();
    EXPECT_NE(grid().currentIndex().column(), column);
    EXPECT_EQ(texts("Dateiname")[0], "Mischer.Ein");
}

TEST_F(GridCommands, AnEntryOfTheMenuOfTheMembersIsRun) {
    showMembers("Rezepte/Limonade");
    selectRow(0);
    const BoxAnswers answers({"Ja"});
    const NextWindow next([](QWidget& window) {
        auto* menu = qobject_cast<QMenu*>(&window);
        ASSERT_NE(menu, nullptr);
        QAction& remove = find<QAction>(*menu, "mnuRecipeMemberDelete");
        ASSERT_TRUE(remove.isEnabled());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&remove).center());
    });
    clickCell(0, "Variable", Qt::RightButton);
    handleEvents();
    EXPECT_TRUE(next.came());
    EXPECT_EQ(stored(file, 1), Texts{"Mischer.Wasser"});
}

TEST_F(GridCommands, ADoubleClickOnASubRecipeEditsIt) {
    showMembers("Rezepte/Meyer's Bräu/Unterrezepte");
    std::string name;
    const NextWindow next([&](QWidget& window) { name = window.objectName().toStdString(); });
    const QPoint point = cell(1, "Unterrezept").center();
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, point);
    handleEvents();
    EXPECT_TRUE(next.came());
    EXPECT_EQ(name, "FSubRecipe");
}

TEST_F(GridCommands, ADuplicateIsRefusedAndTheRowShowsItsStoredVariableAgain) {
    showMembers("Rezepte/Limonade");
    edit(1, "Variable", "MISCHER.zucker");
    const BoxAnswers answers;
    QTest::keyClick(&grid(), Qt::Key_Up);
    handleEvents();
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text, "Doppelter Name");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_EQ(grid().currentIndex().row(), 1);
    QTest::keyClick(&grid(), Qt::Key_Up);
    EXPECT_EQ(grid().currentIndex().row(), 0);
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(GridCommands, ControlOInTheGridIsTheStudiosAndLeavesTheColumnInItsPlace) {
    showMembers("Rezepte/Meyer's Bräu/Unterrezepte");
    QHeaderView& header = *grid().horizontalHeader();
    const int recipe = column("Unterrezept");
    const int natural = header.visualIndex(recipe);
    clickCell(0, "Unterrezept");
    header.moveSection(natural, 0);
    ASSERT_EQ(header.visualIndex(recipe), 0);
    EXPECT_TRUE(pressFor(Qt::Key_O, Qt::ControlModifier, [](QWidget&) {}));
    EXPECT_EQ(header.visualIndex(recipe), 0);
}

TEST_F(GridCommands, ControlPageDownGoesToTheLastVisibleColumn) {
    showMembers("Rezepte/Meyer's Bräu/Unterrezepte");
    clickCell(0, "Dateiname");
    QTest::keyClick(&grid(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(grid().currentIndex().column(), column("Unterrezept"));
    QTest::keyClick(&grid(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(grid().currentIndex().column(), column("Dateiname"));
}

}  // namespace
}  // namespace hx::gui
