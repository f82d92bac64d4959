// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace hx::torture {

using Environment = std::map<std::string, std::string>;

/// How a process ended, and what it said.
struct Ending {
    int status = -1;    ///< when it ended by itself
    int signal = 0;     ///< that ended it
    bool late = false;  ///< it did not end in time, and was ended
    std::string output, problems;

    /// Whether it told the user of a problem.
    [[nodiscard]] bool told() const { return status != 0 || output.find("message: ") != std::string::npos; }
    /// Whether it was ended, or a sanitizer has found something in it.
    [[nodiscard]] bool brokeDown() const {
        return late || signal != 0 || problems.find("Sanitizer") != std::string::npos ||
               problems.find("runtime error: ") != std::string::npos;
    }
    /// What it said in one line, for a message.
    [[nodiscard]] std::string words() const;
};

/// A program that runs beside this one.
class Process {
  public:
    using Command = std::vector<std::string>;
    /// Far longer than anything takes, on a machine that is busy with other things too.
    static constexpr std::chrono::seconds patience{900};

    /// `folder` gets the files with what it says; `environment` is put over the own one.
    Process(const Command& command, const std::string& folder, const Environment& environment);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Waits; true when it has ended.
    bool endsWithin(std::chrono::microseconds time);
    void kill();
    /// Waits for the end, and ends what takes too long.
    Ending wait();

    static Ending run(const Command& command, const std::string& folder, const Environment& environment) {
        return Process(command, folder, environment).wait();
    }

  private:
    std::string output_, problems_;
    pid_t process_ = -1;
    int handle_ = -1;
};

}  // namespace hx::torture
