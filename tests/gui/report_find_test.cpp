// SPDX-License-Identifier: MIT
#include <QLabel>

#include "gui/report_preview.h"

namespace hx::gui {
namespace {

/// Looking for a text in the preview.
class ReportFind : public ReportPreview {
  protected:
    static QLineEdit& look(QWidget& preview, const QString& text) {
        QTest::keyClick(&preview, Qt::Key_F, Qt::ControlModifier);
        auto& field = find<QLineEdit>(preview, "reportFindText");
        EXPECT_TRUE(field.hasFocus());
        field.clear();
        type(field, text);
        QTest::keyClick(&field, Qt::Key_Return);
        handleEvents();
        return field;
    }
    static std::string state(const QWidget& preview) {
        return find<QLabel>(preview, "reportFindState").text().toStdString();
    }
};

TEST_F(ReportFind, GoesFromMatchToMatchAndAllAround) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        QLineEdit& field = look(preview, "mischer.apfel");
        ASSERT_TRUE(view.match());
        const auto first = *view.match();
        EXPECT_GT(first.page, 0);
        EXPECT_EQ(view.page(), first.page);
        field.setText("Limonade");
        std::vector<report::Pages::Match> matches;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(&preview, Qt::Key_F3);
            ASSERT_TRUE(view.match());
            if (!matches.empty() && *view.match() == matches.front()) break;
            matches.push_back(*view.match());
        }
        EXPECT_GT(matches.size(), 2U);
        EXPECT_LT(matches.size(), 40U);
        QTest::keyClick(&preview, Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_TRUE(*view.match() == matches.back());
    });
}

TEST_F(ReportFind, TellsWhatIsNotThereAndEscClosesTheBarFirst) {
    openEditor();
    inPreview([](QWidget& preview) {
        QLineEdit& field = look(preview, "gibt es nicht");
        EXPECT_EQ(state(preview), "Nicht gefunden");
        EXPECT_FALSE(pages(preview).match());
        QTest::keyClick(&field, Qt::Key_Escape);
        EXPECT_TRUE(preview.isVisible());
        EXPECT_FALSE(field.isVisible());
        EXPECT_TRUE(pages(preview).hasFocus());
    });
}

TEST_F(ReportFind, LooksThroughAllPagesOfALargeReport) {
    openLarge();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        (void)look(preview, "Nr. 1437");
        ASSERT_TRUE(view.match());
        // The view goes there when it knows how many pages there are; the next search begins where it stands.
        ASSERT_TRUE(QTest::qWaitFor([&view] { return view.page() == view.match()->page; }));
        QTest::keyClick(&preview, Qt::Key_F3);
        ASSERT_TRUE(view.match());
        EXPECT_GT(view.match()->page, 100);
    });
}

}  // namespace
}  // namespace hx::gui
