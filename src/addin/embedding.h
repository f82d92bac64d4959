// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "editor/add_in.h"
#include "editor/frmtabgrid.h"
#include "host/services.h"

namespace hx::addin {

/// Moves the editor window into the studio and back, and watches its activation through a window procedure of its own.
/// One editor window at a time. Must outlive the hook.
class EditorEmbedding {
  public:
    EditorEmbedding(const host::Services& services, bool& busy) : services_(services), busy_(busy) {}
    EditorEmbedding(const EditorEmbedding&) = delete;
    EditorEmbedding& operator=(const EditorEmbedding&) = delete;

    /// Places the window into the studio's window. False after an error, which is shown.
    bool SetParentFromMe(const forms::Form& window, const host::ProjectExplorer& explorer);
    /// Places the window into `parent`. False after an error, which is shown.
    bool GetParentFromMe(const forms::Form& window, forms::WindowHandle parent);

    /// Puts a procedure before the window's own that refreshes the window when it is activated.
    void HookEditorWindow(editor::frmtabgrid& window);
    /// Puts the window's own procedure back; does nothing when none was saved.
    void UnhookEditorWindow(const editor::frmtabgrid& window);

    /// The parent of the last SetParentFromMe; 0 before.
    [[nodiscard]] forms::WindowHandle hostParent() const noexcept { return hostParent_; }
    /// The number of the message "HX_EDITORS"; 0 before the first hook.
    [[nodiscard]] std::uint32_t editorMessage() const noexcept { return editorMessage_; }

  private:
    std::int32_t windowProcedure(forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                                 std::int32_t lParam);
    void activationChanged(bool active);

    const host::Services& services_;
    bool& busy_;
    editor::frmtabgrid* editor_ = nullptr;
    host::window::ProcedureAddress previousProcedure_ = 0;
    std::uint32_t editorMessage_ = 0;
    forms::WindowHandle hostParent_ = 0;
    bool failureShown_ = false;
};

}  // namespace hx::addin
