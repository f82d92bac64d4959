// SPDX-License-Identifier: MIT
#include "gui/macro_fixture.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QToolBar>
#include <optional>

#include "adapters/qt/text.h"

namespace hx::gui {

namespace {

constexpr int patience = 60'000;  // milliseconds: the machine may be busy

}  // namespace

void StudioMacroTest::writeMacro(const QString& name, const std::string& text) {
    const QString path = folder.filePath("config/macros/" + name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::fromStdString(text)) < 0) {
        throw std::runtime_error("the macro cannot be written");
    }
}

QAction& StudioMacroTest::entry(const QString& path) {
    emit menu().aboutToShow();
    QList<QAction*> actions = menu().actions();
    for (const QString& part : path.section('/', 0, -2).split('/', Qt::SkipEmptyParts)) {
        for (QAction* action : QList(actions)) {
            if (action->text() == part && action->menu() != nullptr) actions = action->menu()->actions();
        }
    }
    for (QAction* action : actions) {
        if (action->text() == path.section('/', -1)) return *action;
    }
    throw std::runtime_error("no entry " + qt::fromQt(path));
}

std::string StudioMacroTest::run(const std::string& text, const std::function<void()>& meanwhile,
                                 const std::function<bool()>& when) {
    writeMacro("test.lua", text);
    if (!find<QDockWidget>(window(), "macroDock").isHidden()) press("actionClearOutput");
    entry("test").trigger();
    std::optional<Once> once;
    if (meanwhile) once.emplace([&] { return running() && when(); }, meanwhile);
    QTimer guard;  // a macro that waits for ever would keep the test from ending
    guard.callOnTimeout([this] {
        ADD_FAILURE() << "the macro does not end by itself";
        action("actionStopMacro").trigger();
    });
    guard.start(patience);
    QTest::qWait(1);
    EXPECT_TRUE(waitUntil([this] { return !running(); })) << "the macro does not end";
    handleEvents();
    // The first line names the macro.
    return qt::fromQt(textOf().toPlainText().section('\n', 1));
}

std::string StudioMacroTest::runAndStop(const std::string& text) {
    return run(text, [this] {
        EXPECT_TRUE(running());
        press("actionStopMacro");
    });
}

void StudioMacroTest::press(const char* actionName) {
    auto& tools = find<QToolBar>(window(), "macroTools");
    QTest::mouseClick(tools.widgetForAction(&find<QAction>(window(), actionName)), Qt::LeftButton);
}

std::string StudioMacroTest::status() { return qt::fromQt(find<QLabel>(window(), "macroStatus").text()); }

}  // namespace hx::gui
