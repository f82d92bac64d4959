// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/wording.h"
#include "host/system_services.h"

namespace hx::qt {

/// The choice of a folder, from where the given text says on. A folder in the project's comes back as "<ProjectDir>"
/// and the way from there, with the separators of the given text ("\" when it has none); any other one as the system
/// writes it.
class QtPathSelection : public host::PathSelection {
  public:
    /// Both are lent.
    QtPathSelection(const QtWindows& windows, const Wording& wording) : windows_(windows), wording_(wording) {}
    void setProjectFolder(const QString& folder) { projectFolder_ = folder; }
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override;

    /// "<ProjectDir>\sub" as a folder of the disk; other paths stay as they are.
    [[nodiscard]] QString expand(const QString& path) const;
    /// A folder of the disk as a text in the style of `like`.
    [[nodiscard]] QString shorten(const QString& folder, const QString& like) const;
    /// The folder itself or the nearest one above it that exists; without any, the project's or the user's.
    [[nodiscard]] QString startFolder(const QString& path) const;

  private:
    const QtWindows& windows_;
    const Wording& wording_;
    QString projectFolder_;
};

}  // namespace hx::qt
