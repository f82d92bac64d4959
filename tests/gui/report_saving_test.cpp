// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFile>
#include <QProgressDialog>
#include <QStatusBar>

#include "gui/report_preview.h"
#include "report/preview/preview_window.h"

namespace hx::gui {
namespace {

using ReportSaving = ReportPreview;

using Names = std::vector<std::string>;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Whether a file is chosen again, after a message.
bool choosesAfter(const BoxAnswers& answers) {
    const auto* choice = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return !answers.shown().empty() && choice != nullptr && choice->isVisible() && isActive(*choice);
}

TEST_F(ReportSaving, IsSavedAsPdf) {
    openEditor();
    const QString path = folder.filePath("Bericht.pdf");
    inPreview([&](QWidget& preview) {
        saveWith(preview, "reportPdf", choosing(path));
        EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(),
                  "Gespeichert: " + QDir::toNativeSeparators(path));
    });
    const QByteArray pdf = contentOf(path);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_GT(pdf.count("/Type /Page\n"), 1);
    EXPECT_EQ(leftovers(), Names{"Bericht.pdf"});
}

TEST_F(ReportSaving, IsSavedAsHtml) {
    openEditor(qt::Wording::english);
    inPreview([this](QWidget& preview) { saveWith(preview, "reportHtml", choosing(folder.filePath("Bericht"))); });
    const QByteArray html = contentOf(folder.filePath("Bericht.html"));
    EXPECT_TRUE(html.startsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_TRUE(html.contains("Meyer&#39;s Bräu"));
    EXPECT_TRUE(html.contains("Datei.Limonade"));
    EXPECT_TRUE(html.endsWith("</html>\n"));
    EXPECT_EQ(leftovers(), Names{"Bericht.html"});
}

TEST_F(ReportSaving, CancellingKeepsEverything) {
    openEditor();
    inPreview([](QWidget& preview) {
        saveWith(preview, "reportPdf", [](QFileDialog& dialog) {
            EXPECT_EQ(find<QLineEdit>(dialog, "fileNameEdit").text(), "Anlage.pdf");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        EXPECT_TRUE(preview.isVisible());
        EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(), "");
    });
    EXPECT_EQ(leftovers(), Names{});
}

TEST_F(ReportSaving, AFileIsReplacedOnlyWhenTheUserSaysSo) {
    openEditor();
    const QString path = folder.filePath("alt.html");
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    inPreview([&](QWidget& preview) {
        {
            const BoxAnswers answers({"Nein"});
            const Once again([&] { return choosesAfter(answers); },
                             [] {
                                 QWidget& choice = *QApplication::activeModalWidget();
                                 EXPECT_EQ(find<QLineEdit>(choice, "fileNameEdit").text(), "alt.html");
                                 QTest::keyClick(&choice, Qt::Key_Escape);
                             });
            const NextModal<QFileDialog> next(choosing(path));
            find<QAction>(preview, "reportHtml").trigger();
            ASSERT_EQ(answers.shown().size(), 1u);
            EXPECT_EQ(answers.shown()[0].text, "Die Datei gibt es schon:\n" +
                                                   qt::fromQt(QDir::toNativeSeparators(path)) +
                                                   "\n\nSoll sie ersetzt werden?");
        }
        EXPECT_EQ(contentOf(path), "old");
        const BoxAnswers answers({"Ja"});
        saveWith(preview, "reportHtml", choosing(path));
        EXPECT_TRUE(contentOf(path).startsWith("<!DOCTYPE html>"));
    });
    EXPECT_EQ(leftovers(), Names{"alt.html"});
}

TEST_F(ReportSaving, TheProjectFileIsNeverReplaced) {
    openEditor();
    const QByteArray before = contentOf(project);
    inPreview([this](QWidget& preview) {
        const BoxAnswers answers({"OK"});
        const Once again([&] { return choosesAfter(answers); },
                         [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        const NextModal<QFileDialog> next(choosing(project));
        find<QAction>(preview, "reportPdf").trigger();
        ASSERT_EQ(answers.shown().size(), 1u);
        EXPECT_TRUE(answers.shown()[0].text.find("Projektdatei") != std::string::npos) << answers.shown()[0].text;
    });
    EXPECT_EQ(contentOf(project), before);
}

TEST_F(ReportSaving, AFailureToSaveIsShown) {
    openEditor();
    const QString path = folder.filePath("folder.pdf/report.pdf");
    ASSERT_TRUE(QFile(folder.filePath("folder.pdf")).open(QIODevice::WriteOnly));
    inPreview([&](QWidget& preview) {
        const BoxAnswers answers({"OK"});
        const NextModal<QFileDialog> next([&](QFileDialog& dialog) {
            // The dialog itself refuses a folder that there is not, so the choice is made behind its back.
            dialog.selectFile(path);
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        find<QAction>(preview, "reportPdf").trigger();
        ASSERT_EQ(answers.shown().size(), 1u);
        EXPECT_EQ(answers.shown()[0].title, "Rezeptbericht");
        EXPECT_TRUE(answers.shown()[0].text.starts_with("Der Bericht konnte nicht gespeichert werden:\n"));
    });
}

/// Cancels the progress of the report as soon as it is shown.
class CancelProgress : public QObject {
  public:
    CancelProgress() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Show && object->objectName() == "reportProgress")
            static_cast<QProgressDialog*>(object)->cancel();
        return false;
    }
};

TEST_F(ReportSaving, WhatTakesLongIsCancelled) {
    openLarge();
    inPreview([this](QWidget& preview) {
        static_cast<report::PreviewWindow&>(preview).patience = 0;
        const CancelProgress cancelling;
        for (const char* tool : {"reportPdf", "reportHtml"}) {
            find<QStatusBar>(preview, "reportStatus").clearMessage();
            saveWith(preview, tool, choosing(folder.filePath("Bericht")));
            EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(), "Abgebrochen") << tool;
        }
        EXPECT_TRUE(preview.isVisible());
    });
    EXPECT_EQ(leftovers(), Names{});
}

}  // namespace
}  // namespace hx::gui
