// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

namespace hx::bench {

/// Qt's application object without a display.
class Application {
  private:
    struct Offscreen {
        Offscreen() { qputenv("QT_QPA_PLATFORM", "offscreen"); }
    } offscreen_;  // before the application
    int count_ = 1;
    char name_[9] = "hx_bench";
    char* arguments_[2] = {name_, nullptr};
    QApplication application_{count_, arguments_};
};

}  // namespace hx::bench
