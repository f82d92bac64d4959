// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <QPlainTextEdit>
#include <functional>
#include <gmock/gmock.h>
#include <string>

#include "gui/studio_fixture.h"

namespace hx::gui {

/// The studio with macros of the user's.
class StudioMacroTest : public StudioTest {
  protected:
    /// Puts a macro into the user's folder; `name` is that of its file.
    void writeMacro(const QString& name, const std::string& text);
    [[nodiscard]] QMenu& menu() { return find<QMenu>(window(), "menuMacros"); }
    /// Opens the menu and gives the entry of this text, also one of a sub-menu ("samples/rename").
    [[nodiscard]] QAction& entry(const QString& path);
    [[nodiscard]] QAction& action(const char* name) { return find<QAction>(window(), name); }
    [[nodiscard]] bool running() { return action("actionStopMacro").isEnabled(); }
    /// Writes and runs a macro by the menu; `meanwhile` is done while it runs, as soon as `when` holds. What it has
    /// printed.
    std::string run(
        const std::string& text, const std::function<void()>& meanwhile = {},
        const std::function<bool()>& when = [] { return true; });
    /// Runs it as `run`, and stops it by the button after a while; fails when it does not end then.
    std::string runAndStop(const std::string& text);
    /// Presses the button in the output.
    void press(const char* actionName);
    [[nodiscard]] std::string output() { return textOf().toPlainText().toStdString(); }
    [[nodiscard]] std::string status();
    [[nodiscard]] QPlainTextEdit& textOf() { return find<QPlainTextEdit>(window(), "macroText"); }
};

}  // namespace hx::gui
