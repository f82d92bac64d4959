// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>

#include "adapters/qt/wording.h"
#include "studio/macro_library.h"

namespace hx::studio {

/// What the entries of the menu do.
class MacroMenuCommands {
  public:
    virtual ~MacroMenuCommands() = default;
    virtual void runMacro(const QString& path) = 0;
    virtual void chooseMacro() = 0;
    virtual void openMacroFolder() = 0;
    virtual void copySampleMacros() = 0;
};

/// The menu of macros: those in the user's folder, read whenever it opens, and what is done with them.
class MacroMenu : public QMenu {
  public:
    /// All are lent.
    MacroMenu(QWidget& window, const MacroLibrary& library, MacroMenuCommands& commands, QAction& runAgain,
              QAction& stop, const qt::Wording& wording);
    void retranslate();
    /// While a macro runs no other one can be begun.
    void setRunning(bool running);

  private:
    void fill();
    void addMacros(const MacroFolder& folder, QMenu& menu);
    const MacroLibrary& library_;
    MacroMenuCommands& commands_;
    QAction& runAgain_;
    QAction& stop_;
    const qt::Wording& wording_;
    QAction runFile_, openFolder_, copySamples_;
    bool running_ = false;
};

}  // namespace hx::studio
