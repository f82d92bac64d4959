// SPDX-License-Identifier: MIT

// Help files that nobody would wait for.
#include <QAction>
#include <QFile>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>

#include "adapters/qt/help/help_page.h"
#include "adapters/qt/help/help_window.h"
#include "adapters/qt/help/qt_help_viewer.h"
#include "adapters/qt/text.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

class HostileHelp : public Desktop {
  protected:
    /// Compiles a help file with this one topic and shows it.
    qt::HelpWindow& show(const QString& topic) {
        write(QStringLiteral("a.htm"), "<html><body>" + topic.toUtf8() + "</body></html>");
        write(QStringLiteral("x.hhp"),
              "[OPTIONS]\nCompiled file=x.chm\nDefault topic=a.htm\nTitle=X\n\n[FILES]\na.htm\n");
        QProcess compiler;
        compiler.setWorkingDirectory(folder_.path());
        compiler.start(QStringLiteral(HX_CHMCMD), {QStringLiteral("x.hhp")});
        EXPECT_TRUE(compiler.waitForFinished(-1));
        viewer_.showContext(0, qt::fromQt(folder_.filePath(QStringLiteral("x.chm"))), 1);
        viewer_.window()->findChild<QAction*>(QStringLiteral("helpHome"))->trigger();
        handleEvents();
        return *viewer_.window();
    }
    [[nodiscard]] QString shown() { return find<QTextBrowser>(*viewer_.window(), "helpPage").toPlainText(); }

    QTemporaryDir folder_;
    qt::QtHelpViewer viewer_{screen, windows, wording};

  private:
    void write(const QString& name, const QByteArray& bytes) {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

// Each level takes twice as long as the one within it: 60 would take longer than the earth is old.
TEST_F(HostileHelp, ShowsTheTextOfNestedTables) {
    const QString tables = QStringLiteral("<table><tr><td>Zelle ").repeated(60);
    qt::HelpWindow& window = show("<b>Kopf</b> " + tables + "Ende");
    EXPECT_TRUE(shown().startsWith(QStringLiteral("Kopf Zelle Zelle"))) << qt::fromQt(shown());
    EXPECT_TRUE(shown().endsWith(QStringLiteral("Ende")));
    EXPECT_TRUE(window.statusBar()->currentMessage().contains(QStringLiteral("nur sein Text")));
}

TEST_F(HostileHelp, SetsTablesInTables) {
    const qt::HelpWindow& window = show(QStringLiteral("<table><tr><td>Zelle ").repeated(2));
    EXPECT_FALSE(window.statusBar()->currentMessage().contains(QStringLiteral("nur sein Text")));
    EXPECT_EQ(find<QTextBrowser>(*viewer_.window(), "helpPage").document()->rootFrame()->childFrames().size(), 1);
}

}  // namespace
}  // namespace hx::gui
