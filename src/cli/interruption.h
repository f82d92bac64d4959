// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

namespace hx::cli {

/// While it lives, Ctrl+C and the request to end (SIGINT, SIGTERM) are noted, so that what is running can end in order;
/// a second one ends the program at once. One at a time.
class Interruption {
  public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    [[nodiscard]] bool requested() const noexcept;

  private:
    using Handler = void (*)(int);
    Handler interruptBefore_, endBefore_;
};

}  // namespace hx::cli
