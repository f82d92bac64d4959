#pragma once

#include <QApplication>

#include "adapters/qt/qt_screen.h"
#include "adapters/qt/qt_windows.h"
#include "adapters/qt/wording.h"

namespace hx::bench {

/// An application without a display, with a screen for forms.
class Desktop {
  public:
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

  private:
    struct Offscreen {
        Offscreen() { qputenv("QT_QPA_PLATFORM", "offscreen"); }
    } offscreen_;  // before the application
    int count_ = 1;
    char name_[9] = "hx_bench";
    char* arguments_[2] = {name_, nullptr};
    QApplication application_{count_, arguments_};

  public:
    qt::Wording wording;
    qt::QtWindows windows;
    qt::QtScreen screen{windows, wording};
};

}  // namespace hx::bench
