#pragma once

#include <ostream>

namespace hx::cli {

/// Where a command reports.
struct Output {
    std::ostream& results;
    std::ostream& problems;
    bool problemsAreShown = false;  ///< problems go to a terminal: progress may be drawn there
};

/// Exit statuses.
enum Status : int { succeeded = 0, failed = 1, wrongUsage = 2 };

/// Runs `hxrecipe` with these arguments: new, generate, build-sample. Never throws.
int run(int argc, const char* const* argv, const Output& output);

}  // namespace hx::cli
