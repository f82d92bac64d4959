// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/variable_source.h"
#include "adapters/qt/wording.h"
#include "host/system_services.h"

namespace hx::qt {

/// The choice of one variable of the project in a dialog with a searchable list.
class QtItemSelection : public host::ItemSelection {
  public:
    /// All are lent.
    QtItemSelection(const VariableSource& source, const QtWindows& windows, const Wording& wording)
        : source_(source), windows_(windows), wording_(wording) {}
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override;

  private:
    const VariableSource& source_;
    const QtWindows& windows_;
    const Wording& wording_;
};

}  // namespace hx::qt
