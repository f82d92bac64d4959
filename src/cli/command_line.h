// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

namespace hx::cli {

/// Where a command reports.
struct Output {
    std::ostream& results;
    std::ostream& problems;
    bool problemsAreShown = false;  ///< problems go to a terminal: progress may be drawn there
};

/// Exit statuses. A command that answers a question says `found` for findings or differences; when it cannot answer,
/// it says `cannotTell`. Who presses Ctrl+C gets what a shell says of a program that SIGINT has ended.
enum Status : int { succeeded = 0, failed = 1, found = 1, wrongUsage = 2, cannotTell = 2, cancelled = 130 };

/// Runs `hxrecipe` with these arguments. Never throws.
int run(int argc, const char* const* argv, const Output& output);

}  // namespace hx::cli
