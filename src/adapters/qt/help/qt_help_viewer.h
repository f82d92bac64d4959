// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <memory>

#include "adapters/qt/help/help_window.h"
#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/wording.h"
#include "forms/screen.h"
#include "host/system_services.h"

namespace hx::qt {

/// Shows compiled help in one window. A file that is missing or damaged is said in a message.
class QtHelpViewer : public host::HelpViewer {
  public:
    /// All are lent.
    QtHelpViewer(forms::Screen& screen, const QtWindows& windows, const Wording& wording);
    ~QtHelpViewer() override;
    void showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) override;
    void closeAll() override;

    /// Null while no help is open.
    [[nodiscard]] HelpWindow* window() const noexcept { return window_.get(); }

  private:
    [[nodiscard]] bool openFile(const QString& path, const QString& asNamed);
    void say(const QString& text);

    forms::Screen& screen_;
    const QtWindows& windows_;
    const Wording& wording_;
    std::unique_ptr<HelpWindow> window_;
    QString path_;
    QDateTime changed_;
};

}  // namespace hx::qt
