// SPDX-License-Identifier: MIT
#include "gui/report_preview.h"

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMouseEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolButton>

namespace hx::gui {
namespace {

using Names = std::vector<std::string>;

TEST_F(ReportPreview, TheMenuOpensItOverTheEditor) {
    openEditor();
    inPreview([this](QWidget& preview) {
        EXPECT_EQ(preview.windowTitle(), "Rezeptbericht – Anlage");
        EXPECT_TRUE(preview.isModal());
        EXPECT_EQ(preview.parentWidget(), &window());
        EXPECT_EQ(find<QAction>(preview, "reportPrint").text(), "Drucken");
        EXPECT_EQ(find<QComboBox>(preview, "reportZoom").currentText(), "Seitenbreite");
        const auto* names = find<QListView>(preview, "reportRecipes").model();
        ASSERT_EQ(names->rowCount(), 3);
        EXPECT_EQ(names->index(2, 0).data().toString(), "Meyer's Bräu");
    });
    window().activateWindow();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    click("Rezepte/Limonade");
    EXPECT_EQ(texts("Variable"), (Names{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(ReportPreview, SpeaksEnglish) {
    openEditor(qt::Wording::english);
    inPreview([](QWidget& preview) {
        EXPECT_EQ(preview.windowTitle(), "Recipe Report – Anlage");
        EXPECT_EQ(find<QAction>(preview, "reportPrint").text(), "Print");
        EXPECT_EQ(find<QComboBox>(preview, "reportZoom").currentText(), "Page Width");
    });
}

TEST_F(ReportPreview, EveryToolHasANameAKeyAndAPicture) {
    openEditor();
    inPreview([](QWidget& preview) {
        int tools = 0;
        for (QToolButton* button : preview.findChildren<QToolButton*>()) {
            if (button->defaultAction() == nullptr) continue;
            ++tools;
            const auto name = qt::fromQt(button->defaultAction()->objectName());
            EXPECT_NE(button->accessibleName(), "") << name;
            EXPECT_FALSE(button->icon().isNull()) << name;
            EXPECT_FALSE(button->defaultAction()->shortcut().isEmpty()) << name;
            EXPECT_EQ(button->focusPolicy(), Qt::TabFocus) << name;
        }
        EXPECT_EQ(tools, 13);
    });
}

TEST_F(ReportPreview, PagesAreReachedByKeyboard) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        auto& number = find<QSpinBox>(preview, "reportPage");
        ASSERT_GT(number.maximum(), 2);
        EXPECT_TRUE(view.hasFocus());
        EXPECT_EQ(number.value(), 1);
        EXPECT_FALSE(find<QAction>(preview, "reportPrevious").isEnabled());
        QTest::keyClick(&view, Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(number.value(), 2);
        QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
        EXPECT_EQ(number.value(), number.maximum());
        EXPECT_FALSE(find<QAction>(preview, "reportNext").isEnabled());
        QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(number.value(), 1);
        number.setFocus();
        number.selectAll();
        QTest::keyClick(&number, Qt::Key_3);
        QTest::keyClick(&number, Qt::Key_Return);
        EXPECT_TRUE(preview.isVisible());
        EXPECT_EQ(view.page(), 2);
    });
}

TEST_F(ReportPreview, ZoomIsChangedByKeyAndList) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        auto& zoom = find<QComboBox>(preview, "reportZoom");
        QTest::keyClick(&view, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(zoom.currentText(), "Ganze Seite");
        const double whole = view.zoom();
        QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_GT(view.zoom(), whole);
        QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_LT(view.zoom(), whole);
        zoom.setCurrentIndex(zoom.findText("150 %"));
        emit zoom.activated(zoom.currentIndex());
        EXPECT_EQ(view.zoom(), 1.5);
        EXPECT_EQ(zoom.currentText(), "150 %");
        QTest::keyClick(&view, Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(zoom.currentText(), "Seitenbreite");
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    });
}

/// Chooses a recipe of the list; where the pages then are.
int placeOf(QWidget& preview, int recipe) {
    auto& list = find<QListView>(preview, "reportRecipes");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(recipe, 0)).center());
    return find<QAbstractScrollArea>(preview, "reportPages").verticalScrollBar()->value();
}

TEST_F(ReportPreview, ARecipeOfTheListIsShown) {
    openEditor();
    inPreview([](QWidget& preview) {
        QScrollBar& bar = *pages(preview).verticalScrollBar();
        const int first = placeOf(preview, 0), second = placeOf(preview, 1);
        EXPECT_GT(first, 0);
        EXPECT_GT(second, first);
        QTest::keyClick(&find<QListView>(preview, "reportRecipes"), Qt::Key_Up);
        EXPECT_EQ(bar.value(), first);
    });
}

TEST_F(ReportPreview, ALineOfTheContentsLeadsToItsRecipe) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        const int second = placeOf(preview, 1);
        view.showPage(0);
        // The three lines of the contents stand somewhere on the first page; the pointer tells where there is a link.
        const int x = view.viewport()->width() / 3;
        int first = 0, last = 0;
        for (int y = 0; y < view.viewport()->height(); ++y) {
            const QPoint point(x, y);
            QMouseEvent move(QEvent::MouseMove, point, view.viewport()->mapToGlobal(point), Qt::NoButton, {}, {});
            QApplication::sendEvent(view.viewport(), &move);
            const bool link = view.viewport()->cursor().shape() == Qt::PointingHandCursor;
            if (link && first == 0) first = y;
            if (link) last = y;
            else if (first > 0) break;
        }
        ASSERT_GT(first, 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(x, (first + last) / 2));
        EXPECT_EQ(view.verticalScrollBar()->value(), second);
    });
}

TEST_F(ReportPreview, ARecipeIsShownAsSoonAsItsPageIsKnown) {
    openLarge();
    inPreview([](QWidget& preview) {
        auto& names = find<QListView>(preview, "reportRecipes");
        const auto& number = find<QSpinBox>(preview, "reportPage");
        emit names.clicked(names.model()->index(1499, 0));
        EXPECT_TRUE(waitUntil([&] { return number.value() > 1000; })) << number.value();
        EXPECT_TRUE(waitUntil([&] { return !find<QProgressBar>(preview, "reportLayout").isVisible(); }));
        EXPECT_LE(number.maximum() - number.value(), 2);
    });
}

TEST_F(ReportPreview, EscapeClosesIt) {
    openEditor();
    inPreview([](QWidget& preview) {
        QTest::keyClick(&preview, Qt::Key_Escape);
        EXPECT_FALSE(preview.isVisible());
    });
}

TEST_F(ReportPreview, AProjectWithoutRecipesIsSaid) {
    start();
    ASSERT_TRUE(window().createProject(folder.filePath("leer.hxs")));
    click("Rezepte");
    const BoxAnswers answers({"OK"});
    chooseReport();
    handleEvents();
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text, "Das Projekt „leer“ enthält keine Rezepte.");
}

}  // namespace
}  // namespace hx::gui
