#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <optional>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/text.h"
#include "forms/wait_cursor.h"
#include "report/preview/preview_window.h"

/// How the preview's report leaves the window: on paper and in files.
namespace hx::report {

namespace {

bool isSameFile(const QString& a, const QString& b) {
    const QString one = QFileInfo(a).canonicalFilePath();
    return !one.isEmpty() && one == QFileInfo(b).canonicalFilePath();
}

PageRange rangeOf(const QPrinter& printer, const Pages& pages, int current) {
    const int last = pages.count() - 1;
    if (printer.printRange() == QPrinter::CurrentPage) return {current, current};
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() == 0) return {0, last};
    return {std::clamp(printer.fromPage() - 1, 0, last), std::clamp(printer.toPage() - 1, 0, last)};
}

}  // namespace

void PreviewWindow::save(const FileKind& kind) {
    const QString path = askForFile(kind);
    if (path.isEmpty()) return;
    QString problem;
    {
        const forms::WaitCursor wait(services_.screen);
        problem = kind.write(path);
    }
    saved(path, problem);
}

// A file that may not be written leads back to the choice. Empty when the user gives up.
QString PreviewWindow::askForFile(const FileKind& kind) {
    QString proposed = qt::toQt(report_.projectName()) + '.' + QLatin1StringView(kind.suffix);
    while (true) {
        QFileDialog dialog(this, kind.hint, folder_, kind.kinds);
        dialog.setObjectName(QStringLiteral("reportFileDialog"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked in the studio's own words
        dialog.setDefaultSuffix(QLatin1StringView(kind.suffix));
        dialog.setLabelText(QFileDialog::Accept, wording_.translate("report", "Save"));
        dialog.setLabelText(QFileDialog::Reject, wording_.translate("report", "Cancel"));
        if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) qt::dressButtons(*buttons, wording_);
        dialog.selectFile(proposed);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
        QString path = dialog.selectedFiles().constFirst();
        folder_ = QFileInfo(path).absolutePath();
        proposed = QFileInfo(path).fileName();
        if (mayWrite(path)) return path;
    }
}

bool PreviewWindow::mayWrite(const QString& path) {
    if (!QFileInfo::exists(path)) return true;
    const QString shown = QDir::toNativeSeparators(path);
    if (isSameFile(path, qt::toQt(report_.projectFile()))) {
        say(wording_.translate("report", "The report cannot be written in place of the project file:\n%1").arg(shown),
            forms::message::ok | forms::message::exclamation);
        return false;
    }
    constexpr std::int32_t style = forms::message::yesNo | forms::message::question | forms::message::defaultButton2;
    return say(wording_.translate("report", "The file exists already:\n%1\n\nReplace it?").arg(shown), style) ==
           forms::message::Answer::yes;
}

void PreviewWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    printer.setDocName(qt::toQt(report_.fullTitle()));
    printer.setCreator(QStringLiteral("HXProjectReport"));
    QPrintDialog dialog(&printer, this);
    dialog.setObjectName(QStringLiteral("reportPrintDialog"));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, pages_.count());
    dialog.setFromTo(1, pages_.count());
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        for (QAbstractButton* button : buttons->buttons()) button->setIcon(QIcon());
    }
    if (dialog.exec() != QDialog::Accepted) return;
    printTo(printer);
}

void PreviewWindow::printTo(QPrinter& printer) {
    std::optional<forms::WaitCursor> wait(services_.screen);
    const int current = view_.page();
    // The printer may have paper of another size.
    const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Point).size() * 20;
    const Pages sheets(report_, paper);
    const PageRange range = rangeOf(printer, sheets, std::min(current, sheets.count() - 1));
    if (const QString file = printer.outputFileName(); !file.isEmpty()) {
        const QString problem = savePdf(report_, sheets, range, file);
        wait.reset();
        return saved(file, problem);
    }
    const QString name = printer.printerName();
    const bool done = paintPages(sheets, range, printer);
    wait.reset();
    if (done) status_.showMessage(wording_.translate("report", "Sent to the printer “%1”").arg(name), 15000);
    else
        say(wording_.translate("report", "The report could not be printed. The printer “%1” does not take a job.")
                .arg(name),
            forms::message::ok | forms::message::critical);
}

}  // namespace hx::report
