// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "history/journal.h"
#include "history/reversal.h"
#include "history/step_name.h"

namespace hx::history {

/// One unit of work: what a command, an import or a macro has changed.
struct Step {
    StepName name;
    std::int64_t time = 0;    ///< seconds since 1970, UTC
    bool fromBefore = false;  ///< made by a program that did not end as it should
};

/// What has been changed in one project since it was opened, and the way back and forth. Changes are recorded by
/// RecordingProvider. One thread.
class History {
  public:
    /// The steps stand in a journal in the folder `cache`; while it cannot be written, in memory, as many as fit into
    /// `mostMemory` bytes. The provider is lent: it opens the project without recording.
    History(ado::Provider& provider, std::string project, const Journal::Path& cache,
            std::size_t mostMemory = std::size_t{64} << 20U);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    [[nodiscard]] const std::string& project() const noexcept { return project_; }
    /// In their order; those from position() on have been undone.
    [[nodiscard]] const std::vector<Step>& steps() const noexcept { return steps_; }
    [[nodiscard]] std::size_t position() const noexcept { return position_; }

    /// Carries steps out backwards or forwards until so many are done. Throws what carryOut says, after the steps
    /// before the one that is refused; position() tells how far it came.
    void goTo(std::size_t position);
    void undo() { goTo(position_ - 1); }
    void redo() { goTo(position_ + 1); }
    /// What a step has changed; nothing when that is not to be had any more.
    [[nodiscard]] std::optional<ChangeLog> changesOf(std::size_t step);

    /// A step of what was changed: what was undone before cannot be done again. `session` is the one that made it.
    void record(ChangeLog changes, ado::Session& session);
    /// Until endGroup() all becomes one step of this name; groups may be nested, the outer one counts.
    void beginGroup(StepName name);
    void endGroup();
    /// A change was made that could not be recorded: nothing before it can be undone.
    void forget();

    /// Called before something is changed; what it throws is of no effect.
    std::function<void()> beforeChange;
    void willChange() noexcept;
    /// Called after a step outside of a group that has done what may not have been meant.
    std::function<void(const Surprise& surprise)> surprised;
    /// Called after each change of steps() or position().
    std::function<void()> changed;

    /// The project is closed as it should be: nothing is left of the journal.
    void close() noexcept { journal_.close(); }

  private:
    struct Kept {
        std::optional<Journal::Place> place;  // in the journal, or
        std::optional<ChangeLog> changes;     // in memory; none: not to be had any more
    };
    void readRecord(std::string_view record, const Journal::Place& place);
    void add(Step step, ChangeLog changes);
    void dropUndone();
    void limitMemory();
    void notePosition();

    ado::Provider& provider_;
    std::string project_;
    std::size_t mostMemory_;
    std::vector<Step> steps_;
    std::vector<Kept> kept_;  // of each step
    std::size_t position_ = 0;
    int groups_ = 0;
    std::optional<StepName> groupName_;
    ChangeLog group_;
    Journal journal_;
};

/// All that is recorded while it lives is one step.
class Group {
  public:
    Group(History& history, StepName name) : history_(history) { history_.beginGroup(std::move(name)); }
    ~Group() { history_.endGroup(); }
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

  private:
    History& history_;
};

}  // namespace hx::history
