#pragma once

#include <QString>

#include "adapters/qt/qt_windows.h"
#include "adapters/qt/wording.h"
#include "host/system_services.h"

namespace hx::qt {

/// The choice of a folder. A folder in the project's begins with "<ProjectDir>".
class QtPathSelection : public host::PathSelection {
  public:
    /// Both are lent.
    QtPathSelection(const QtWindows& windows, const Wording& wording) : windows_(windows), wording_(wording) {}
    void setProjectFolder(const QString& folder) { projectFolder_ = folder; }
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override;

    /// "<ProjectDir>/sub" as a folder of the disk, and back; other paths stay as they are.
    [[nodiscard]] QString expand(const QString& path) const;
    [[nodiscard]] QString shorten(const QString& path) const;

  private:
    const QtWindows& windows_;
    const Wording& wording_;
    QString projectFolder_;
};

}  // namespace hx::qt
