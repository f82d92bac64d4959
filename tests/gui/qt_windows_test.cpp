// SPDX-License-Identifier: MIT
#include <QMainWindow>
#include <QMdiArea>
#include <QTest>

#include "gui/demo_form.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

namespace window = host::window;

class WindowsTest : public Desktop {
  protected:
    QMainWindow main;
    QMdiArea* area = std::make_unique<QMdiArea>(&main).release();  // the main window owns it
    forms::WindowHandle areaHandle = windows.add(*area);
    std::shared_ptr<DemoForm> form = std::make_shared<DemoForm>(screen);

    void SetUp() override {
        main.setCentralWidget(area);
        main.resize(900, 600);
        main.show();
        ASSERT_TRUE(activate(main));
    }
    [[nodiscard]] QMdiSubWindow& document() { return *area->subWindowList().at(0); }
    void embed() {
        form->load();
        windows.setParent(form->handle(), areaHandle);
    }
};

TEST_F(WindowsTest, KeepsTheStyleOfAWindow) {
    form->load();
    EXPECT_EQ(windows.style(form->handle()), 0u);
    windows.setStyle(form->handle(), 0x80880000);
    EXPECT_EQ(windows.style(form->handle()), 0x80880000u);
    EXPECT_THROW((void)windows.style(4711), automation::Error);
}

TEST_F(WindowsTest, PlacesAFormIntoTheDocumentArea) {
    embed();
    EXPECT_FALSE(document().isVisible());
    form->show();
    EXPECT_TRUE(document().isVisible());
    EXPECT_EQ(document().windowTitle(), "Demo");
    EXPECT_EQ(document().width(), screen.units().pixels(9000));
    form->hide();
    EXPECT_FALSE(document().isVisible());
}

TEST_F(WindowsTest, TakesAFormOutToTheTopLevelHidden) {
    embed();
    form->show();
    windows.setParent(form->handle(), -1);
    handleEvents();
    EXPECT_TRUE(area->subWindowList().isEmpty());
    EXPECT_FALSE(windowOf(*form).isVisible());
    EXPECT_TRUE(windowOf(*form).isWindow());
    EXPECT_EQ(windows.embeddingObject(form->handle()), nullptr);
}

TEST_F(WindowsTest, APlaceIsMeasuredInTheDocumentArea) {
    embed();
    form->show();
    form->setLeft(screen.units().twips(40));
    form->setTop(screen.units().twips(25));
    const auto inner = windows.rect(form->handle());
    const auto outer = windows.rect(areaHandle);
    EXPECT_EQ(inner.left - outer.left, 40);
    EXPECT_EQ(inner.top - outer.top, 25);
    EXPECT_EQ(inner.right - inner.left, document().width());
}

TEST_F(WindowsTest, TheUserMovingTheWindowIsReportedToTheForm) {
    embed();
    form->show();
    document().setGeometry(30, 20, 500, 400);
    EXPECT_EQ(form->left(), screen.units().twips(30));
    EXPECT_EQ(form->top(), screen.units().twips(20));
    EXPECT_EQ(form->width(), screen.units().twips(500));
    document().showMaximized();
    EXPECT_EQ(form->windowState(), forms::WindowState::maximised);
    EXPECT_EQ(form->width(), screen.units().twips(500));
}

TEST_F(WindowsTest, AMaximisedFormFillsTheArea) {
    form->setWindowState(forms::WindowState::maximised);
    embed();
    form->show();
    EXPECT_TRUE(document().isMaximized());
    EXPECT_EQ(document().width(), area->viewport()->width());
    form->hide();
    form->show();
    EXPECT_TRUE(document().isMaximized());
}

TEST_F(WindowsTest, AMaximisedFormKeepsItsNormalSizeWhileTheStudioIsResized) {
    embed();
    form->show();
    document().setGeometry(30, 20, 500, 400);
    document().showMaximized();
    for (const QSize& size : {QSize(700, 500), QSize(1100, 800), QSize(900, 600)}) {
        main.resize(size);
        handleEvents();
        EXPECT_EQ(form->windowState(), forms::WindowState::maximised);
        EXPECT_EQ(form->left(), screen.units().twips(30));
        EXPECT_EQ(form->width(), screen.units().twips(500));
        EXPECT_EQ(form->height(), screen.units().twips(400));
    }
    document().showNormal();
    handleEvents();
    EXPECT_EQ(document().geometry(), QRect(30, 20, 500, 400));
    EXPECT_EQ(form->width(), screen.units().twips(500));
}

TEST_F(WindowsTest, APlaceThatIsGivenToAMaximisedFormIsItsPlaceWhenItIsRestored) {
    embed();
    form->show();
    document().setGeometry(30, 20, 500, 400);
    document().showMaximized();
    form->setLeft(screen.units().twips(60));
    form->setHeight(screen.units().twips(350));
    document().showNormal();
    handleEvents();
    EXPECT_EQ(document().geometry(), QRect(60, 20, 500, 350));
    EXPECT_EQ(form->left(), screen.units().twips(60));
    form->setWindowState(forms::WindowState::maximised);
    form->setLeft(screen.units().twips(90));
    form->setWindowState(forms::WindowState::normal);
    EXPECT_EQ(document().geometry(), QRect(90, 20, 500, 350));
}

TEST_F(WindowsTest, AFormThatWouldLieOutOfReachIsBroughtIntoView) {
    const QSize room = area->viewport()->size();
    for (const QPoint& place : {QPoint(3000, 10), QPoint(10, 2000), QPoint(-590, 10), QPoint(10, -300)}) {
        const auto shown = std::make_shared<DemoForm>(screen);
        shown->move(screen.units().twips(place.x()), screen.units().twips(place.y()), 9000, 6000);
        shown->load();
        windows.setParent(shown->handle(), areaHandle);
        shown->show();
        const QRect there = document().geometry();
        EXPECT_TRUE(QRect({}, room).contains(there)) << place.x() << " " << place.y();
        EXPECT_EQ(shown->left(), screen.units().twips(there.x()));
        EXPECT_EQ(shown->top(), screen.units().twips(there.y()));
        shown->unload(forms::UnloadMode::byCode);
        handleEvents();
    }
}

TEST_F(WindowsTest, AFormWhoseTitleCanBeCaughtStaysWhereItIs) {
    form->move(screen.units().twips(700), screen.units().twips(300), 9000, 6000);
    embed();
    form->show();
    EXPECT_EQ(document().pos(), QPoint(700, 300));
}

TEST_F(WindowsTest, ActivationGoesThroughTheInstalledProcedures) {
    embed();
    std::vector<std::string> calls;
    const auto install = [&](const std::string& name) {
        auto previous = std::make_shared<window::ProcedureAddress>(0);
        *previous =
            windows.install(form->handle(), [&, name, previous](auto handle, auto message, auto wParam, auto lParam) {
                calls.push_back(name + " " + std::to_string(message) + " " + std::to_string(wParam));
                return windows.call(*previous, handle, message, wParam, lParam);
            });
        return *previous;
    };
    const auto original = install("first");
    install("second");
    form->show();
    EXPECT_EQ(calls, (std::vector<std::string>{"second 6 1", "first 6 1"}));
    calls.clear();
    QMdiSubWindow* other = area->addSubWindow(std::make_unique<QWidget>().release());
    other->show();
    EXPECT_EQ(calls, (std::vector<std::string>{"second 6 0", "first 6 0"}));
    windows.restore(form->handle(), original);
    calls.clear();
    area->setActiveSubWindow(&document());
    EXPECT_TRUE(calls.empty());
}

TEST_F(WindowsTest, TheEmbeddingObjectShowsTheDocument) {
    embed();
    const auto object = windows.embeddingObject(form->handle());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->className(), "MDIEdit");
    object->get("Show");
    EXPECT_TRUE(document().isVisible());
    windows.setParent(form->handle(), 0);
    handleEvents();
    object->get("Show");
}

TEST_F(WindowsTest, AMessageNameHasOneNumber) {
    const auto number = windows.registerMessage("HX_EDITORS");
    EXPECT_EQ(windows.registerMessage("HX_EDITORS"), number);
    EXPECT_NE(windows.registerMessage("OTHER"), number);
    EXPECT_GE(number, 0xC000u);
}

TEST_F(WindowsTest, TheCloseBoxAsksTheForm) {
    embed();
    form->show();
    std::vector<forms::UnloadMode> modes;
    form->queryUnloadEvent.connect([&](bool& cancel, forms::UnloadMode mode) {
        modes.push_back(mode);
        cancel = true;
        form->hide();
    });
    document().close();
    EXPECT_EQ(modes, std::vector{forms::UnloadMode::byUser});
    EXPECT_FALSE(document().isVisible());
    form->show();
    EXPECT_TRUE(document().isVisible());
    EXPECT_TRUE(windowOf(*form).isVisible());
}

TEST_F(WindowsTest, ComesToTheFrontRestoredAndWithTheKeyboard) {
    embed();
    form->fill(3);
    form->show();
    document().showMinimized();
    ASSERT_EQ(form->windowState(), forms::WindowState::minimised);
    form->bringToFront();
    EXPECT_EQ(form->windowState(), forms::WindowState::normal);
    EXPECT_FALSE(document().isMinimized());
    EXPECT_TRUE(windowOf(*form).isAncestorOf(QApplication::focusWidget()));
}

}  // namespace
}  // namespace hx::gui
