// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace hx::bench {

using Action = std::function<void()>;

/// What is measured again and again; `before` and `after`, where given, run around each time outside the clock.
struct Work {
    template <class Callable>
    Work(Callable timed) : action(std::move(timed)) {}  // a plain action is work too
    Work(Action first, Action timed, Action last = {})
        : before(std::move(first)), action(std::move(timed)), after(std::move(last)) {}
    /// Work that measures itself, in milliseconds: what counts is only a part of it.
    static Work timing(std::function<double()> itself) {
        Work work{Action()};
        work.spent = std::move(itself);
        return work;
    }

    Action before;
    Action action;
    Action after;
    std::function<double()> spent;
};

/// Prepares the work, outside the clock.
using Subject = std::function<Work()>;

/// What runs of one subject cost.
struct Cost {
    std::vector<double> milliseconds;  ///< of every run
    double megabytes = 0;              ///< resident memory that the first run added, at its peak

    [[nodiscard]] bool known() const noexcept { return !milliseconds.empty(); }
    [[nodiscard]] double median() const;
    [[nodiscard]] double worst() const;
};

/// Runs a subject in a process of its own, so that what one leaves behind (memory, caches) cannot help or harm another.
/// An exception there ends the program with its text.
[[nodiscard]] Cost measure(const Subject& subject, int runs);

/// Measures the subjects in turn, `rounds` times, so that a slow spell of the machine meets all of them. The memory is
/// the median of the rounds. An empty subject stays unknown.
[[nodiscard]] std::vector<Cost> compare(const std::vector<Subject>& subjects, int rounds, int runs);

}  // namespace hx::bench
