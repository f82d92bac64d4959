// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "dialogs/fconfig_editor.h"
#include "forms/grid.h"
#include "forms/status_bar.h"
#include "settings/cinit.h"

namespace hx::dialogs {

/// The window whose options are edited. It is editor::frmtabgrid, which opens the dialog and is changed by it: the
/// interface keeps this folder from including the one above it.
class ConfigurableWindow {
  public:
    virtual ~ConfigurableWindow() = default;
    /// The window itself: its font is the editor's font, its handle the dialog's owner.
    [[nodiscard]] virtual forms::Form& editorWindow() = 0;
    [[nodiscard]] virtual forms::Grid& memberGrid() = 0;
    [[nodiscard]] virtual forms::StatusBar& statusBar() = 0;
    /// The settings of the window, with the window as Motherobject.
    [[nodiscard]] virtual settings::CInit& inits() = 0;
    /// A message box with OK and the default title. The window is not refreshed meanwhile.
    virtual void tell(std::string_view text) = 0;
    /// Lays out bar, status line and grid anew.
    virtual void abr_Resize() = 0;
};

/// Whether a deletion is confirmed first. Only a plain "no" turns the question off: a damaged entry does not.
[[nodiscard]] bool asksBeforeDeleting(const settings::CInit& inits);

/// Lets the user edit the options of the window; what is chosen goes to the window and its settings, which are written
/// when the window closes. Always 0: nothing has to be read again. A failure is named in a message box.
std::int32_t ShowConfigEditor(ConfigurableWindow& window, const host::Services& services, resources::Help& help);
/// Fills the dialog from the window. False after any error.
[[nodiscard]] bool InitConfigEditor(ConfigurableWindow& window, FConfigEditor& dialog);
/// Applies the dialog to the window. False after any error: what was done before it stays done.
[[nodiscard]] bool WriteBackConfigEditor(ConfigurableWindow& window, const FConfigEditor& dialog);

}  // namespace hx::dialogs
