// SPDX-License-Identifier: MIT
#pragma once

#include "forms/screen.h"

namespace hx::forms {

inline void ShowWaitCursor(Screen& screen) { screen.setPointer(Pointer::hourglass); }
inline void RestoreCursor(Screen& screen) { screen.setPointer(Pointer::standard); }

/// Shows the wait cursor while it lives.
class WaitCursor {
  public:
    explicit WaitCursor(Screen& screen) : screen_(screen) { ShowWaitCursor(screen_); }
    ~WaitCursor() { RestoreCursor(screen_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    Screen& screen_;
};

}  // namespace hx::forms
