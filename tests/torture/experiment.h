// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "support/temporary_folder.h"
#include "torture/operation.h"
#include "torture/state.h"

namespace hx::torture {

/// A folder of its own for one process at a time.
class Place {
  public:
    Place();
    [[nodiscard]] std::string work() const { return folder_.file("work"); }
    [[nodiscard]] std::string side() const { return folder_.file("side"); }
    [[nodiscard]] std::string log() const { return folder_.file("log"); }
    /// Empties it, and copies a folder into it.
    void fillFrom(const std::string& folder);
    /// What every process there needs; with the faults where they are asked for.
    [[nodiscard]] Environment environment(const Operation& operation, const Environment& faults) const;
    [[nodiscard]] const std::string& path() const { return folder_.path(); }

  private:
    support::TemporaryFolder folder_;
};

/// Which call fails how (faults/plan.h).
struct Fault {
    std::string mode;
    long at = 0;
    std::string keep;

    [[nodiscard]] std::string text() const;
    [[nodiscard]] Environment environment(const Place& place) const;
    /// Whether the process is meant to be ended by it.
    [[nodiscard]] bool kills() const { return mode == "kill" || mode == "cut"; }
};

/// An operation with all that the folder may hold during and after it.
class Experiment {
  public:
    /// Does the operation undisturbed, each number of steps. Throws when that fails.
    explicit Experiment(const Operation& operation);

    [[nodiscard]] const Operation& operation() const { return operation_; }
    /// How many calls change the folder.
    [[nodiscard]] long calls() const { return calls_; }
    /// How many blocks of memory it asks for.
    [[nodiscard]] long countBlocks() const;
    /// How long it takes undisturbed.
    [[nodiscard]] std::chrono::microseconds time() const { return time_; }
    [[nodiscard]] const std::string& before() const { return before_; }

    /// Does it with a fault and looks at what is left; empty when all is well.
    [[nodiscard]] std::string attempt(const Fault& fault) const;
    /// Does it and ends it after a while.
    [[nodiscard]] std::string attemptKilledAfter(std::chrono::microseconds time) const;

  private:
    Ending run(const Place& place, const Process::Command& command, const Environment& faults) const;
    void makeBefore();
    void learn(int steps);
    void learnPart();
    void countCalls();
    [[nodiscard]] std::string judge(const Place& place, const Ending& ending, bool killed, bool cleared) const;
    [[nodiscard]] std::string judgeState(const State& state, const Ending& ending, bool killed) const;
    [[nodiscard]] std::string judgeNext(const Place& place, const State& after) const;
    [[nodiscard]] bool isLegitimate(const State& state, int first, int last) const;
    [[nodiscard]] std::string strange(const State& state) const;

    const Operation& operation_;
    Place template_;
    std::string before_;
    std::vector<State> states_;  // after each number of steps
    std::string part_;           // the project when the last step has done a part and told so
    long calls_ = 0;
    std::chrono::microseconds time_{0};
};

}  // namespace hx::torture
