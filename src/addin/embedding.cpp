// SPDX-License-Identifier: MIT
#include "addin/embedding.h"

#include <exception>
#include <utility>

#include "addin/trap.h"

namespace hx::addin {

namespace window = host::window;

bool EditorEmbedding::SetParentFromMe(const forms::Form& form, const host::ProjectExplorer& explorer) {
    return trap(services_.screen, "SetParentFromMe", [&] {
        host::WindowOperations& windows = services_.windows;
        // A pop-up style on a window that becomes a child: the studio's container expects these bits.
        constexpr std::uint32_t added = window::popup | window::border | window::sysMenu;
        windows.setStyle(form.handle(), windows.style(form.handle()) | added);
        const forms::WindowHandle parent = explorer.hostWindow();
        windows.setParent(form.handle(), parent);
        hostParent_ = parent;
    });
}

bool EditorEmbedding::GetParentFromMe(const forms::Form& form, forms::WindowHandle parent) {
    return trap(services_.screen, "GetParentFromMe", [&] { services_.windows.setParent(form.handle(), parent); });
}

void EditorEmbedding::HookEditorWindow(editor::frmtabgrid& form) {
    previousProcedure_ = services_.windows.install(
        form.handle(), [this](forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                              std::int32_t lParam) { return windowProcedure(handle, message, wParam, lParam); });
    editor_ = &form;
    editorMessage_ = services_.windows.registerMessage("HX_EDITORS");
}

void EditorEmbedding::UnhookEditorWindow(const editor::frmtabgrid& form) {
    if (previousProcedure_ != 0) services_.windows.restore(form.handle(), previousProcedure_);
    editor_ = nullptr;
}

std::int32_t EditorEmbedding::windowProcedure(forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                                              std::int32_t lParam) {
    if (message == window::activateMessage && !busy_) {
        activationChanged(wParam == window::active || wParam == window::clickActive);
    }
    return services_.windows.call(previousProcedure_, handle, message, wParam, lParam);
}

void EditorEmbedding::activationChanged(bool active) {
    if (editor_ == nullptr || !editor_->dataEnvironment()) return;
    try {
        if (!active) return editor_->SwitchGrids(editor_->nodeKey());
        editor_->refreshMembers();
        editor_->tdbRM->refetch();
        failureShown_ = false;
    } catch (...) {
        // Closing the box activates the window again, at once or later, which must not open the next one: a failure
        // that lasts is shown once.
        if (std::exchange(failureShown_, true)) return;
        const editor::Busy busy(busy_);
        trap(services_.screen, "Connect: ActivateEditorWindow",
             [error = std::current_exception()] { std::rethrow_exception(error); });
    }
}

}  // namespace hx::addin
