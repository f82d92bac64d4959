// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

class ComboBoxes : public DialogFixture {
  protected:
    std::shared_ptr<dialogs::FRecipe> recipe = std::make_shared<dialogs::FRecipe>(services, texts, help);
    std::shared_ptr<dialogs::FSubRecipe> subRecipe = std::make_shared<dialogs::FSubRecipe>(services, texts, help);

    void fill(int count) {
        for (int i = 0; i < count; ++i) subRecipe->cmbChooseRecipe->addItem("Rezept " + std::to_string(i));
    }
    static void turnWheel(QWidget& over) {
        const QPointF point = over.rect().center();
        QWheelEvent event(point, over.mapToGlobal(point), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // As from the device: only such an event may give a widget the keyboard.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&over, &event);
    }
};

TEST_F(ComboBoxes, TypingIntoTheMiddleOfAPathKeepsTheCaret) {
    recipe->cboFilePath->setText("D:\\Rezepte");
    showDuring(*recipe, [this](QWidget& window) {
        auto& line = *find<QComboBox>(window, "cboFilePath").lineEdit();
        line.setFocus();
        line.setCursorPosition(3);
        type(line, "Neue ");
        EXPECT_EQ(line.text(), "D:\\Neue Rezepte");
        EXPECT_EQ(recipe->cboFilePath->text(), "D:\\Neue Rezepte");
        EXPECT_EQ(line.cursorPosition(), 8);
        press(Qt::Key_Backspace);
        EXPECT_EQ(recipe->cboFilePath->text(), "D:\\NeueRezepte");
    });
}

TEST_F(ComboBoxes, WhatWasTypedIntoAPathIsTakenBackByUndo) {
    recipe->cboFilePath->setText("D:\\Rezepte");
    showDuring(*recipe, [this](QWidget& window) {
        auto& line = *find<QComboBox>(window, "cboFilePath").lineEdit();
        line.setFocus();
        line.setCursorPosition(0);
        type(line, "abc");
        while (line.isUndoAvailable()) press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(line.text(), "D:\\Rezepte");
        EXPECT_EQ(recipe->cboFilePath->text(), "D:\\Rezepte");
    });
}

TEST_F(ComboBoxes, AChosenEntryIsTypedOnInTheMiddleToo) {
    showDuring(*recipe, [this](QWidget& window) {
        auto& box = find<QComboBox>(window, "cboFilePath");
        box.setFocus();
        press(Qt::Key_Down);
        ASSERT_EQ(recipe->cboFilePath->text(), "<ProjectDir>");
        box.lineEdit()->setCursorPosition(1);
        type(*box.lineEdit(), "xy");
        EXPECT_EQ(recipe->cboFilePath->text(), "<xyProjectDir>");
        EXPECT_EQ(box.lineEdit()->cursorPosition(), 3);
    });
}

TEST_F(ComboBoxes, TheWheelTurnsAListOnlyWhileItHasTheKeyboard) {
    fill(10);
    subRecipe->cmbChooseRecipe->setListIndex(4);
    showDuring(*subRecipe, [this](QWidget& window) {
        auto& box = find<QComboBox>(window, "cmbChooseRecipe");
        find<QLineEdit>(window, "txtVarRecipe").setFocus();
        turnWheel(box);
        EXPECT_EQ(subRecipe->cmbChooseRecipe->listIndex(), 4);
        EXPECT_FALSE(box.hasFocus());
        box.setFocus();
        turnWheel(box);
        EXPECT_EQ(subRecipe->cmbChooseRecipe->listIndex(), 5);
    });
}

TEST_F(ComboBoxes, TheWheelOverAPathLeavesItAsItIs) {
    recipe->cboFilePath->setText("D:\\Rezepte");
    showDuring(*recipe, [this](QWidget& window) {
        auto& box = find<QComboBox>(window, "cboFilePath");
        find<QLineEdit>(window, "txtName").setFocus();
        turnWheel(*box.lineEdit());
        EXPECT_EQ(recipe->cboFilePath->text(), "D:\\Rezepte");
    });
}

TEST_F(ComboBoxes, TheWheelOverOneOfTheToolkitsBelongsToWhatLiesAroundIt) {
    QScrollArea area;
    auto* inside = std::make_unique<QWidget>().release();  // the area's
    auto* rows = std::make_unique<QVBoxLayout>(inside).release();
    auto* box = std::make_unique<QComboBox>().release();
    box->addItems({"a", "b", "c"});
    rows->addWidget(box);
    inside->setMinimumHeight(3000);
    area.setWidget(inside);
    area.resize(300, 300);
    area.show();
    ASSERT_TRUE(waitUntil([&] { return area.isVisible() && area.windowHandle() != nullptr; }));
    area.ensureWidgetVisible(box);
    const int before = area.verticalScrollBar()->value();
    turnWheel(*box);
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_GT(area.verticalScrollBar()->value(), before);
}

TEST_F(ComboBoxes, ALongListShowsTwentyEntriesAndAScrollBar) {
    fill(100);
    showDuring(*subRecipe, [](QWidget& window) {
        auto& box = find<QComboBox>(window, "cmbChooseRecipe");
        press(Qt::Key_F4);
        QAbstractItemView& list = *box.view();
        ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
        const int row = list.visualRect(list.model()->index(0, 0)).height();
        EXPECT_LE(list.viewport()->height(), 20 * row);
        EXPECT_GE(list.viewport()->height(), 10 * row);
        EXPECT_TRUE(list.verticalScrollBar()->isVisible());
        EXPECT_LT(list.window()->height(), window.screen()->size().height() * 3 / 4);
        box.hidePopup();
    });
}

TEST_F(ComboBoxes, ABlankIsALetterOfTheEntryThatIsTyped) {
    fill(30);
    showDuring(*subRecipe, [this](QWidget& window) {
        auto& box = find<QComboBox>(window, "cmbChooseRecipe");
        ASSERT_EQ(&focused(), &box);
        QApplication::setKeyboardInputInterval(60000);  // however busy the machine is
        type(box, "Rezept 17");
        EXPECT_EQ(subRecipe->cmbChooseRecipe->text(), "Rezept 17");
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        QApplication::setKeyboardInputInterval(400);
    });
}

TEST_F(ComboBoxes, ABlankAloneChangesNothing) {
    fill(3);
    subRecipe->cmbChooseRecipe->setListIndex(1);
    showDuring(*subRecipe, [this](QWidget&) {
        press(Qt::Key_Space);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(subRecipe->cmbChooseRecipe->listIndex(), 1);
    });
}

}  // namespace
}  // namespace hx::gui
