// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/headless/clipboard.h"
#include "adapters/headless/help_viewer.h"
#include "adapters/headless/selections.h"
#include "adapters/windows/native_windows.h"
#include "bare_screen.h"
#include "server/view.h"

namespace hx::server {

/// A view without anything to see: a script answers.
class ScriptedView : public View {
  public:
    forms::Script script;
    forms::Record record;

    [[nodiscard]] forms::Screen& screen() override { return screen_; }
    [[nodiscard]] host::WindowOperations& windows() override { return windows_; }
    [[nodiscard]] host::Clipboard& clipboard() override { return clipboard_; }
    [[nodiscard]] host::HelpViewer& help() override { return help_; }
    [[nodiscard]] host::ItemSelection& items() override { return items_; }
    [[nodiscard]] host::PathSelection& folders() override { return folders_; }

  private:
    windows::NativeWindows windows_;
    BareScreen screen_{script, record};
    headless::Clipboard clipboard_;
    headless::HelpViewer help_{record};
    headless::ItemSelection items_{script, record};
    headless::PathSelection folders_{script, record};
};

}  // namespace hx::server
