// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace hx::support {

/// Other processes that do something at the same time; what they throw ends them with an error.
class Processes {
  public:
    Processes() = default;
    Processes(const Processes&) = delete;
    Processes& operator=(const Processes&) = delete;
    ~Processes() { wait(); }

    pid_t start(const std::function<void()>& work) {
        const pid_t process = fork();
        if (process == 0) {
            try {
                work();
                _exit(EXIT_SUCCESS);
            } catch (...) {
                _exit(EXIT_FAILURE);
            }
        }
        running_.push_back(process);
        return process;
    }

    /// Waits for all of them to end; how many did not end well.
    int wait() {
        int failed = 0;
        for (const pid_t process : running_) {
            int status = 0;
            waitpid(process, &status, 0);
            failed += WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS ? 0 : 1;
        }
        running_.clear();
        return failed;
    }

  private:
    std::vector<pid_t> running_;
};

}  // namespace hx::support
