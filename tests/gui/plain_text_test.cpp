// SPDX-License-Identifier: MIT

// What users, macros and files say is shown as it is, whatever it looks like.
#include <QLabel>
#include <QTextDocumentFragment>

#include "adapters/qt/text.h"
#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

constexpr const char* markup = "<b>fett</b> <img src=\"x\"> & Co";

QString seen(const QString& toolTip) {
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip;
}

TEST(PlainToolTip, ShowsWhatLooksLikeMarkup) {
    for (const QString& text : {QString(markup), QStringLiteral("a < b"), QStringLiteral("<p>"), QString()}) {
        EXPECT_EQ(seen(qt::plainToolTip(text)), text);
    }
    EXPECT_EQ(qt::plainToolTip(QStringLiteral("Makro & Co")), "Makro & Co");
}

TEST_F(StudioMacroTest, ShowsTheCommentOfAMacroAsItIs) {
    writeMacro("m.lua", std::string("-- ") + markup);
    start();
    EXPECT_EQ(seen(entry("m").toolTip()), markup);
    EXPECT_EQ(entry("m").statusTip(), markup);
}

TEST_F(StudioMacroTest, ShowsEveryLabelAsItIs) {
    start();
    open(makeProject());
    run("studio.Click('RCPE0')");
    const auto labels = window().findChildren<QLabel*>();
    EXPECT_GT(labels.size(), 3);
    for (const QLabel* label : labels) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << qt::fromQt(label->objectName()) << qt::fromQt(label->text());
    }
}

TEST_F(StudioMacroTest, ShowsTheToolTipsOfAMacroAsTheyAre) {
    start();
    open(makeProject());
    run(std::string("studio.Click('RCPE0') editor.tbrfunc.ToolTipText = '") + markup + "'");
    EXPECT_EQ(seen(find<QWidget>(window(), "tbrfunc").toolTip()), markup);
}

}  // namespace
}  // namespace hx::gui
