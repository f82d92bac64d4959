// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/screen/qt_screen.h"
#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/wording.h"
#include "bench/application.h"

namespace hx::bench {

/// An application without a display, with a screen for forms.
class Desktop {
  public:
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

  private:
    Application application_;

  public:
    qt::Wording wording;
    qt::QtWindows windows;
    qt::QtScreen screen{windows, wording};
};

}  // namespace hx::bench
