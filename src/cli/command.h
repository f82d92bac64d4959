// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "cli/command_line.h"

namespace hx::cli {

/// The command that the arguments choose; it runs after they have all been read.
struct Command {
    std::function<int()> run;  ///< gives the exit status
    int onFailure = failed;    ///< the exit status when it throws

    /// A command that does something or fails.
    [[nodiscard]] static Command doing(std::function<void()> action) {
        return {[action = std::move(action)] {
                    action();
                    return static_cast<int>(succeeded);
                },
                failed};
    }
    /// A command that answers a question with its exit status.
    [[nodiscard]] static Command asking(std::function<int()> question) { return {std::move(question), cannotTell}; }
};

}  // namespace hx::cli
