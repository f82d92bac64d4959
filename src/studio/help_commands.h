// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <functional>

#include "studio/studio_host.h"

namespace hx::studio {

/// What the menu Help does.
class HelpCommands {
  public:
    using Warn = std::function<void(const QString& text)>;

    /// All are lent. `warn` tells the user what fails.
    HelpCommands(QMainWindow& window, StudioHost& host, Warn warn)
        : window_(window), host_(host), wording_(host.wording()), warn_(std::move(warn)) {}

    /// Puts the help of the studio's language where the add-in looks for it, before that starts. Throws
    /// automation::Error when the registry cannot be written.
    void install();
    /// Shows the help's overview over a window.
    void show(forms::WindowHandle owner);
    void showShortcuts();
    void showAbout();

  private:
    [[nodiscard]] bool installed();

    QMainWindow& window_;
    StudioHost& host_;
    const qt::Wording& wording_;
    Warn warn_;
};

}  // namespace hx::studio
