// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <optional>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/text.h"
#include "automation/cancelled.h"
#include "forms/wait_cursor.h"
#include "report/preview/preview_window.h"

/// How the preview's report leaves the window: on paper and in files.
namespace hx::report {

namespace {

constexpr int steps = 1000, lookTime = 50;

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

// Who cancels wants no half of a job; some printing systems take what they have all the same.
Progress aborting(QPrinter& printer, const Progress& progress) {
    return [&](std::int64_t done, std::int64_t total) {
        try {
            progress(done, total);
        } catch (const automation::Cancelled&) {
            printer.abort();
            throw;
        }
    };
}

}  // namespace

bool PreviewWindow::work(const std::function<void(const Progress&)>& task, const QString& label) {
    std::optional<forms::WaitCursor> wait(services_.screen);
    QProgressDialog dialog(label.isEmpty() ? wording_.translate("report", "Writing the report …") : label,
                           wording_.translate("report", "Cancel"), 0, steps, this);
    dialog.setObjectName(QStringLiteral("reportProgress"));
    dialog.setWindowTitle(windowTitle());
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 50);
    dialog.setMinimumDuration(patience);
    dialog.setAutoReset(false);
    dialog.setAutoClose(false);
    QElapsedTimer sinceLook;
    sinceLook.start();
    const Progress progress = [&](std::int64_t done, std::int64_t total) {
        if (!sinceLook.hasExpired(std::min(patience, lookTime))) return;
        sinceLook.start();
        dialog.setValue(static_cast<int>(done * steps / total));  // hears the user
        if (dialog.isVisible()) wait.reset();
        if (dialog.wasCanceled()) throw automation::Cancelled();
    };
    // NOLINTNEXTLINE(clang-analyzer-deadcode.DeadStores): it is read below
    const bool wasGoingOn = layout_.isGoingOn();
    layout_.stop();
    bool done = true;
    try {
        task(progress);
    } catch (const automation::Cancelled&) {
        status_.showMessage(wording_.translate("report", "Cancelled"), noteTime);
        done = false;
    }
    if (wasGoingOn) layout_.goOn();
    return done;
}

void PreviewWindow::layOutRest(const Progress& progress) {
    layOutAll(pages_, progress);
    layout_.advanced();
}

void PreviewWindow::save(const FileKind& kind) {
    const QString path = askForFile(kind);
    if (path.isEmpty()) return;
    QString problem;
    if (work([&](const Progress& progress) { problem = kind.write(path, progress); })) saved(path, problem);
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
    if (!work([this](const Progress& progress) { layOutRest(progress); }))
        return;  // the dialog says how many pages there are
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
    const int current = view_.page();
    // The printer may have paper of another size.
    Pages sheets(report_, printer.pageLayout().fullRect(QPageLayout::Point).size() * 20);
    const QString file = printer.outputFileName(), name = printer.printerName();
    QString problem;
    bool printed = false;
    const auto task = [&](const Progress& progress) {
        layOutAll(sheets, progress);
        const PageRange range = rangeOf(printer, sheets, std::min(current, sheets.count() - 1));
        if (file.isEmpty()) printed = paintPages(sheets, range, printer, aborting(printer, progress));
        else problem = savePdf(report_, sheets, range, file, progress);
    };
    if (!work(task)) return;
    if (!file.isEmpty()) saved(file, problem);
    else if (printed) status_.showMessage(wording_.translate("report", "Sent to the printer “%1”").arg(name), noteTime);
    else
        say(wording_.translate("report", "The report could not be printed. The printer “%1” does not take a job.")
                .arg(name),
            forms::message::ok | forms::message::critical);
}

}  // namespace hx::report
