#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "cli/command_line.h"

namespace hx::cli {

/// A bar on the terminal for work that takes a while; nothing when there is no terminal or the work is short.
class Progress {
  public:
    using Clock = std::chrono::steady_clock;

    Progress(const Output& output, std::int64_t total, std::function<Clock::time_point()> now = Clock::now);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// So much of the total is done.
    void reach(std::int64_t done);

  private:
    void draw(int percent);

    const Output& output_;
    std::int64_t total_;
    std::int64_t next_ = 0;  // do not look at the clock before so much is done
    std::function<Clock::time_point()> now_;
    Clock::time_point start_ = now_();
    int drawn_ = -1;  // percent
};

}  // namespace hx::cli
