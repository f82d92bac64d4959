// SPDX-License-Identifier: MIT
#include "report/preview/qt_viewer.h"

#include <QApplication>
#include <memory>

#include "forms/wait_cursor.h"
#include "report/preview/preview_window.h"

namespace hx::report {

namespace {

// The host names windows by number; what Qt knows of the one is its place on the screen.
QWidget* windowAt(const host::Services& services, forms::WindowHandle handle) {
    try {
        const host::window::Rect rect = services.windows.rect(handle);
        const QPoint middle((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->isWindow() && window->frameGeometry().contains(middle)) return window;
        }
    } catch (const automation::Error&) {
        // The report opens without a parent where there is no window yet.
    }
    return nullptr;
}

}  // namespace

void QtViewer::show(const Report& report, forms::WindowHandle owner) {
    QWidget* window = QApplication::activeWindow();
    if (window == nullptr) window = windowAt(services_, owner);
    std::unique_ptr<PreviewWindow> preview;
    {
        const forms::WaitCursor wait(services_.screen);  // the pages are laid out
        preview = std::make_unique<PreviewWindow>(report, services_, owner, window);
    }
    preview->exec();
}

}  // namespace hx::report
