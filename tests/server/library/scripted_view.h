// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/headless/clipboard.h"
#include "adapters/headless/help_viewer.h"
#include "adapters/headless/selections.h"
#include "adapters/windows/native_windows.h"
#include "bare_screen.h"
#include "server/view.h"

namespace hx::server {

/// The user of all views.
struct ScriptedUser {
    forms::Script script;
    forms::Record record;
};

/// A view without anything to see: a script answers.
class ScriptedView : public View {
  public:
    /// The user is lent.
    explicit ScriptedView(ScriptedUser& user) : user_(user) {}

    void setProject(std::function<std::string()>) override {}
    [[nodiscard]] forms::Screen& screen() override { return screen_; }
    [[nodiscard]] host::WindowOperations& windows() override { return windows_; }
    [[nodiscard]] host::Clipboard& clipboard() override { return clipboard_; }
    [[nodiscard]] host::HelpViewer& help() override { return help_; }
    [[nodiscard]] host::ItemSelection& items() override { return items_; }
    [[nodiscard]] host::PathSelection& folders() override { return folders_; }

  private:
    ScriptedUser& user_;
    windows::NativeWindows windows_;
    BareScreen screen_{user_.script, user_.record};
    headless::Clipboard clipboard_;
    headless::HelpViewer help_{user_.record};
    headless::ItemSelection items_{user_.script, user_.record};
    headless::PathSelection folders_{user_.script, user_.record};
};

}  // namespace hx::server
