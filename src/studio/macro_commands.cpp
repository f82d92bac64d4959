// SPDX-License-Identifier: MIT
#include "studio/macro_commands.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QProcess>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

constexpr int messageTime = 8000;
constexpr QKeyCombination againKey(Qt::Key_F5);
constexpr QKeyCombination stopKey(Qt::SHIFT, Qt::Key_F5);

QString shown(QKeyCombination key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

}  // namespace

MacroCommands::MacroCommands(QMainWindow& window, ProjectWindow& projects, StudioHost& host, qt::QtExplorer& explorer)
    : window_(window),
      projects_(projects),
      host_(host),
      wording_(host.wording()),
      library_(host.configFolder() + QStringLiteral("/macros"), host.moduleFolders()),
      runAgain_(&window),
      stop_(&window),
      dock_(window, runAgain_, stop_, host.wording()),
      menu_(window, library_, *this, runAgain_, stop_, host.wording()),
      runner_(projects, host, explorer, dock_, stopKey) {
    runAgain_.setObjectName(QStringLiteral("actionRunAgain"));
    stop_.setObjectName(QStringLiteral("actionStopMacro"));
    runAgain_.setIcon(qt::namedIcon("studio/run-macro"));
    stop_.setIcon(qt::namedIcon("studio/stop-macro"));
    runAgain_.setShortcut(againKey);
    stop_.setShortcut(stopKey);
    connect(&runAgain_, &QAction::triggered, this, [this] { runChosen(); });
    connect(&stop_, &QAction::triggered, this, [this] { runner_.stop(); });
    runner_.setChanged([this] { showRunning(); });
    showRunning();
    retranslate();
}

void MacroCommands::addTo(QMainWindow& window) {
    window.menuBar()->insertMenu(window.menuBar()->actions().constLast(), &menu_);
    window.addDockWidget(Qt::BottomDockWidgetArea, &dock_);
    dock_.hide();
    window.addActions({&runAgain_, &stop_});
}

void MacroCommands::retranslate() {
    runAgain_.setText(wording_.translate("studio", "Run &Again"));
    runAgain_.setToolTip(
        qt::plainToolTip(wording_.translate("studio", "Run the last macro again (%1)").arg(shown(againKey))));
    stop_.setText(wording_.translate("studio", "&Stop"));
    stop_.setToolTip(qt::plainToolTip(
        wording_.translate("studio", "Stop the running macro (%1), also while it shows a dialog").arg(shown(stopKey))));
    dock_.setStopKey(shown(stopKey));
    dock_.retranslate();
    menu_.retranslate();
}

void MacroCommands::runMacro(const QString& path) {
    last_ = path;
    dock_.setArguments(arguments_.value(path));
    runChosen();
}

// The menu or the button that asked for it is done first.
void MacroCommands::runChosen() {
    if (last_.isEmpty() || runner_.isRunning()) return;
    arguments_[last_] = dock_.arguments();
    const QStringList given = QProcess::splitCommand(dock_.arguments());
    QTimer::singleShot(0, this, [this, path = last_, given] { runner_.run(path, given); });
}

void MacroCommands::showRunning() {
    const bool running = runner_.isRunning();
    runAgain_.setEnabled(!running && !last_.isEmpty());
    stop_.setEnabled(running);
    menu_.setRunning(running);
    if (runningChanged_) runningChanged_(running ? QFileInfo(last_).completeBaseName() : QString());
    if (running || !closing_) return;
    closing_ = false;
    QTimer::singleShot(0, &window_, &QWidget::close);
}

void MacroCommands::stopAndClose() {
    closing_ = true;
    runner_.stop();
}

void MacroCommands::chooseMacro() {
    const QString start = QDir(library_.folder()).exists() ? library_.folder() : projects_.projectFolder();
    QFileDialog dialog(&window_, wording_.translate("studio", "Run Macro File"), start);
    dialog.setObjectName(QStringLiteral("macroFileDialog"));
    dialog.setNameFilters(
        {wording_.translate("studio", "Macros in Lua (*.lua)"), wording_.translate("studio", "All files (*)")});
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() == QDialog::Accepted) runMacro(dialog.selectedFiles().constFirst());
}

bool MacroCommands::makeFolder() {
    if (library_.makeFolder()) return true;
    host_.screen().messageBox(
        qt::fromQt(wording_.translate("studio", "The macros folder cannot be written:\n%1").arg(library_.folder())),
        forms::message::ok | forms::message::exclamation, qt::fromQt(wording_.translate("studio", "Macro output")));
    return false;
}

void MacroCommands::openMacroFolder() {
    if (!makeFolder()) return;
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(library_.folder()))) {
        report(wording_.translate("studio", "The folder could not be opened: %1")
                   .arg(QDir::toNativeSeparators(library_.folder())));
    }
}

void MacroCommands::copySampleMacros() {
    if (!makeFolder()) return;
    const int copied = library_.copySamples();
    const QString place = QDir::toNativeSeparators(library_.sampleFolder());
    if (copied > 0) report(wording_.translate("studio", "%1 sample macros copied to %2").arg(copied).arg(place));
    else if (copied == 0) report(wording_.translate("studio", "The sample macros are there already: %1").arg(place));
    else
        (void)host_.screen().messageBox(
            qt::fromQt(wording_.translate("studio", "The macros folder cannot be written:\n%1").arg(place)),
            forms::message::ok | forms::message::exclamation, qt::fromQt(wording_.translate("studio", "Macro output")));
}

void MacroCommands::report(const QString& text) { window_.statusBar()->showMessage(text, messageTime); }

}  // namespace hx::studio
