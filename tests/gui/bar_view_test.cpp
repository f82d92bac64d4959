// SPDX-License-Identifier: MIT
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "gui/demo_form.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

class BarViewTest : public Desktop {
  protected:
    std::shared_ptr<DemoForm> form = std::make_shared<DemoForm>(screen);

    void SetUp() override {
        form->fill(3);
        form->show();
        ASSERT_TRUE(activate(windowOf(*form)));
    }
    [[nodiscard]] QMenuBar& menuBar() { return find<QMenuBar>(windowOf(*form), "abr"); }
    [[nodiscard]] QMenu& openMenu() {
        QAction* action = menuBar().actions().constFirst();
        QTest::mouseClick(&menuBar(), Qt::LeftButton, {}, menuBar().actionGeometry(action).center());
        return *action->menu();
    }
    static std::vector<std::string> texts(const QMenu& menu) {
        std::vector<std::string> result;
        for (const QAction* action : menu.actions()) {
            result.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        }
        return result;
    }
    [[nodiscard]] forms::Tool& tool(const char* name) { return *form->abr->mainBand().find(name); }
};

TEST_F(BarViewTest, TheMainBandIsTheMenuBarAndItsHeightIsKnown) {
    ASSERT_EQ(menuBar().actions().size(), 1);
    EXPECT_EQ(menuBar().actions()[0]->text(), "&Bearbeiten");
    EXPECT_EQ(form->abr->mainBand().height(), screen.units().twips(menuBar().height()));
    EXPECT_EQ(form->abr->clientAreaHeight(), form->scaleHeight() - form->abr->mainBand().height());
    tool("mnuEdit").setCaption("&Edit");
    tool("mnuEdit").setEnabled(false);
    EXPECT_EQ(menuBar().actions()[0]->text(), "&Edit");
    EXPECT_FALSE(menuBar().actions()[0]->isEnabled());
    tool("mnuEdit").setVisible(false);
    EXPECT_TRUE(menuBar().actions().isEmpty());
}

TEST_F(BarViewTest, AMenuIsFilledWhenItOpens) {
    int openings = 0;
    form->abr->menuOpeningEvent.connect([&](forms::Tool& opening) {
        ++openings;
        EXPECT_EQ(opening.name(), "mnuEdit");
    });
    tool("title").setVisible(false);
    QMenu& menu = openMenu();
    EXPECT_EQ(texts(menu), (std::vector<std::string>{"&Neu", "-", "&Löschen\tStrg+Delete"}));
    EXPECT_EQ(openings, 1);
    menu.close();
    tool("title").setVisible(true);
    tool("delete").setVisible(false);
    EXPECT_EQ(texts(openMenu()), (std::vector<std::string>{"Rezept", "&Neu"}));
    const QAction* title = menu.actions()[0];
    EXPECT_FALSE(title->isEnabled());
    EXPECT_TRUE(title->font().bold());
    menu.close();
}

TEST_F(BarViewTest, AChosenEntryIsClicked) {
    std::vector<std::string> clicks;
    form->abr->toolClickEvent.connect([&](forms::Tool& clicked) { clicks.push_back(clicked.name()); });
    QMenu& menu = openMenu();
    QTest::keyClick(&menu, Qt::Key_N);
    handleEvents();
    EXPECT_EQ(clicks, std::vector<std::string>{"new"});
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(BarViewTest, AClickOnADisabledEntryIsReportedToo) {
    std::vector<std::string> clicks;
    form->abr->toolClickEvent.connect([&](forms::Tool& clicked) { clicks.push_back(clicked.name()); });
    tool("delete").setEnabled(false);
    QMenu& menu = openMenu();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().constLast()).center());
    handleEvents();
    EXPECT_EQ(clicks, std::vector<std::string>{"delete"});
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(BarViewTest, ABandThatIsRefusedDoesNotOpen) {
    form->abr->bandOpenEvent.connect([](forms::Band&, bool& cancel) { cancel = true; });
    const QMenu& menu = openMenu();
    handleEvents();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(menu.actions().isEmpty());
}

TEST_F(BarViewTest, APopUpMenuEndsWithTheCommandsOfTheMainBand) {
    forms::Tool& entry = form->abr->mainBand().add("showEditor", forms::ToolKind::command);
    entry.setCaption("Editor anzeigen");
    std::vector<std::string> clicks;
    form->abr->toolClickEvent.connect([&](forms::Tool& clicked) { clicks.push_back(clicked.name()); });
    std::vector<std::string> shown;
    const NextMenu next([&](QMenu& menu) {
        shown = texts(menu);
        QTest::keyClick(&menu, Qt::Key_Up);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    screen.popUp(*form->abr, form->abr->band(automation::Variant("edit")));
    EXPECT_EQ(shown.front(), "Rezept");
    EXPECT_EQ(shown.back(), "Editor anzeigen");
    EXPECT_EQ(clicks, std::vector<std::string>{"showEditor"});
}

TEST_F(BarViewTest, ACommandMayEndItsWindow) {
    form->abr->toolClickEvent.connect([this](forms::Tool&) {
        form->unload(forms::UnloadMode::byCode);
        form.reset();
    });
    QTest::keyClick(&openMenu(), Qt::Key_N);
    handleEvents();
    EXPECT_EQ(form, nullptr);
}

TEST_F(BarViewTest, WhatIsBeingTypedIsGivenToTheGridBeforeAMenuOpens) {
    QWidget& grid = find<QWidget>(windowOf(*form), "grid.Splits(1)");
    grid.setFocus();
    form->grid->setRow(1);
    const auto& columns = form->grid->columns();
    const auto name = std::ranges::find(columns, "VarRecipe", [](const auto& column) { return column->dataField(); });
    form->grid->setCol(static_cast<std::int32_t>(name - columns.begin()));
    QTest::keyClick(&grid, Qt::Key_X);
    openMenu().close();
    EXPECT_EQ(form->grid->text(1, form->grid->col()), "x");
    EXPECT_TRUE(form->grid->dataChanged());
}

TEST_F(BarViewTest, TheStatusLineStandsBelowTheGrid) {
    const QWidget& grid = find<QWidget>(windowOf(*form), "grid");
    const QWidget& status = find<QWidget>(windowOf(*form), "sb");
    EXPECT_LE(grid.geometry().bottom(), status.geometry().top());
    EXPECT_EQ(status.geometry().bottom(), windowOf(*form).rect().bottom());
    form->grid->setHeight(form->scaleHeight());
    EXPECT_LT(grid.geometry().bottom(), status.geometry().top());
}

TEST_F(BarViewTest, TheSplitBarReportsTheMouseRelativeToItself) {
    QWidget& bar = find<QWidget>(windowOf(*form), "split");
    std::vector<double> xs;
    form->split->mouseMoveEvent.connect([&](const forms::MouseEvent& mouse) {
        xs.push_back(mouse.x);
        form->split->setLeft(form->split->left() + mouse.x);
    });
    const int left = bar.x();
    QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(2, 20));
    QTest::mouseMove(&bar, QPoint(42, 20));
    EXPECT_EQ(xs, std::vector<double>{screen.units().twips(42)});
    EXPECT_EQ(bar.x(), left + 42);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(2, 20));
}

}  // namespace
}  // namespace hx::gui
