// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "cli/command_line.h"
#include "cli/interruption.h"

namespace hx::cli {

/// A line on the terminal for work that takes a while; none when there is no terminal or the work is short. While it
/// lives, Ctrl+C and the request to end give the work up where it next tells how far it is.
class Progress {
  public:
    using Clock = std::chrono::steady_clock;

    explicit Progress(const Output& output, std::function<Clock::time_point()> now = Clock::now);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// So much of the total is done, rows of one that nobody knows yet when it is 0. Throws automation::Cancelled.
    void reach(std::int64_t done, std::int64_t total);
    /// reach(), as others call it.
    [[nodiscard]] std::function<void(std::int64_t done, std::int64_t total)> hearer() {
        return [this](std::int64_t done, std::int64_t total) { reach(done, total); };
    }

  private:
    void draw(const std::string& line);

    const Output& output_;
    Interruption interruption_;
    std::int64_t total_ = 0;
    std::int64_t next_ = 0;  // do not look at the clock before so much is done
    std::function<Clock::time_point()> now_;
    Clock::time_point start_ = now_();
    std::string drawn_;
};

}  // namespace hx::cli
