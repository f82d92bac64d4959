// SPDX-License-Identifier: MIT
#include "studio/macro_runner.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include "adapters/qt/text.h"
#include "hosting/file_bytes.h"
#include "macros/globals.h"
#include "studio/input_hold.h"

namespace hx::studio {

namespace {

constexpr qint64 handlingInterval = 20;  // milliseconds between two looks at what waits
constexpr int handlingTime = 10;         // milliseconds for it at most
constexpr int dismissalInterval = 20;    // milliseconds between two dialogs
constexpr double milliseconds = 1000;

}  // namespace

MacroRunner::MacroRunner(ProjectWindow& window, StudioHost& host, qt::QtExplorer& explorer, MacroDock& dock,
                         QKeyCombination stopKey)
    : window_(window), host_(host), explorer_(explorer), dock_(dock), stopKey_(stopKey) {
    dismissals_.setInterval(dismissalInterval);
    connect(&dismissals_, &QTimer::timeout, this, [this] { dismissDialog(); });
}

void MacroRunner::run(const QString& path, const QStringList& arguments) {
    if (running_) return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return dock_.showNotRead(path);
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError) return dock_.showNotRead(path);
    runText(text, QFileInfo(path).fileName(), arguments);
}

void MacroRunner::runText(const QByteArray& text, const QString& name, const QStringList& arguments) {
    host_.screen().settle();  // what the user was typing comes before what the macro does
    stop_ = false;
    handled_ = 0;
    clock_.start();
    setRunning(true);
    dock_.begin(name);
    WindowStudio studio(window_, host_, explorer_);
    try {
        runEngine(studio, text, name, arguments);
        dock_.done(seconds());
    } catch (const lua::MacroError& error) {
        showEnd(error);
    } catch (const std::exception&) {
        dock_.failed(qt::toQt(automation::caughtError().description(host_.screen().language())), {});
    }
    dock_.showFound(std::move(studio.found()));
    dismissals_.stop();
    setRunning(false);
}

void MacroRunner::runEngine(WindowStudio& studio, const QByteArray& text, const QString& name,
                            const QStringList& arguments) {
    const InputHold hold(dock_, stopKey_, [this] { stop(); });
    const auto quiet = host_.windows().quiet();
    macros::Attendance& attendance = host_.attendance();
    const lua::MacroFiles files(hosting::fileSystemPath(studio.file()).parent_path());
    lua::Engine engine({.print = [this](std::string_view printed) { dock_.print(printed); },
                        .files = files,
                        .stopRequested = [this] { return stopRequested(); }});
    attendance.begin([this, &engine] { return stop_ || engine.failing(); }, files);
    // The answers are the engine's functions: they end first.
    struct End {
        macros::Attendance& attendance;
        ~End() { attendance.end(); }
    } const end{attendance};
    macros::defineGlobals(engine, studio, files);
    std::vector<std::string> given;
    for (const QString& argument : arguments) given.push_back(qt::fromQt(argument));
    engine.run(text.toStdString(), qt::fromQt(name), given);
}

void MacroRunner::showEnd(const lua::MacroError& error) {
    const QString traceback = QString::fromUtf8(error.traceback());
    if (error.stopped()) dock_.stopped(seconds(), traceback);
    else dock_.failed(QString::fromUtf8(error.what()), traceback);
}

void MacroRunner::stop() {
    if (!running_ || stop_) return;
    stop_ = true;
    // A dialog waits in an event loop of its own, above others that wait below it: they end one after the other.
    dismissals_.start();
}

bool MacroRunner::stopRequested() {
    if (!stop_ && !handling_ && clock_.elapsed() - handled_ >= handlingInterval) handleEvents();
    return stop_;
}

void MacroRunner::handleEvents() {
    const QScopedValueRollback handling(handling_, true);
    const auto aside = host_.attendance().stepAside();
    dock_.flush();
    QCoreApplication::processEvents(QEventLoop::AllEvents, handlingTime);
    // Windows that have been closed go when nothing of the add-in's waits for the macro: it may still be in them.
    if (!host_.attendance().asking()) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    handled_ = clock_.elapsed();
}

void MacroRunner::dismissDialog() {
    if (QWidget* popUp = QApplication::activePopupWidget()) {
        popUp->close();
        return;
    }
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) return dialog->reject();
    (void)host_.attendedScreen().dismissDialog();
}

void MacroRunner::setRunning(bool running) {
    running_ = running;
    dock_.setRunning(running);
    if (changed_) changed_();
}

double MacroRunner::seconds() const { return static_cast<double>(clock_.elapsed()) / milliseconds; }

}  // namespace hx::studio
