// SPDX-License-Identifier: MIT
#include "history/history.h"

#include <utility>

#include "automation/error.h"
#include "history/sentences.h"
#include "history/step_record.h"

namespace hx::history {

using automation::Error;

namespace {

// The project may be locked by another program by now: the step is kept all the same, under a plainer name.
Account account(const ChangeLog& changes, ado::Session& session) {
    try {
        return accountOf(changes, session);
    } catch (const Error&) {
        Account plain;
        ChangeReader reader(changes);
        while (reader.next() != nullptr) ++plain.name.rows;
        return plain;
    }
}

std::int64_t secondsNow() {
    return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

}  // namespace

History::History(ado::Provider& provider, std::string project, const Journal::Path& cache, std::size_t mostMemory)
    : provider_(provider),
      project_(std::move(project)),
      mostMemory_(mostMemory),
      journal_(cache, project_,
               [this](std::string_view record, const Journal::Place& place) { readRecord(record, place); }) {}

History::~History() = default;

void History::readRecord(std::string_view record, const Journal::Place& place) {
    if (const auto position = positionIn(record)) {
        position_ = std::min(*position, steps_.size());
    } else if (auto step = stepIn(record)) {
        dropUndone();
        step->fromBefore = true;
        steps_.push_back(std::move(*step));
        kept_.push_back({place, std::nullopt});
        position_ = steps_.size();
    }
}

void History::dropUndone() {
    steps_.resize(position_);
    kept_.resize(position_);
}

// Nothing fails once the first of the two lists has grown: each step keeps its own changes.
void History::add(Step step, ChangeLog changes) {
    dropUndone();
    if (kept_.capacity() == kept_.size()) kept_.reserve(2 * kept_.size() + 1);
    if (steps_.capacity() == steps_.size()) steps_.reserve(2 * steps_.size() + 1);
    const auto place = journal_.append(recordOf(step, changes));
    kept_.push_back(place ? Kept{place, std::nullopt} : Kept{std::nullopt, std::move(changes)});
    steps_.push_back(std::move(step));
    position_ = steps_.size();
    limitMemory();
    if (changed) changed();
}

// The oldest steps go first.
void History::limitMemory() {
    std::size_t bytes = 0;
    for (std::size_t step = kept_.size(); step > 0; --step) {
        auto& changes = kept_[step - 1].changes;
        if (!changes) continue;
        bytes += changes->bytes().size();
        if (bytes > mostMemory_) changes.reset();
    }
}

void History::willChange() noexcept {
    if (!beforeChange) return;
    try {
        beforeChange();
    } catch (const std::exception&) {
        // The change does not depend on it.
    }
}

void History::record(ChangeLog changes, ado::Session& session) {
    if (changes.empty()) return;
    auto [name, surprise] = account(changes, session);
    if (groups_ > 0) {
        groupName_->recipes += name.recipes;
        groupName_->rows += name.rows;
        if (groupName_->recipe == 0) groupName_->recipe = name.recipe;
        return group_.add(changes);
    }
    add({std::move(name), secondsNow(), false}, std::move(changes));
    if (surprise && surprised) surprised(*surprise);
}

void History::beginGroup(StepName name) {
    if (groups_++ == 0) groupName_ = std::move(name);
}

void History::endGroup() {
    if (--groups_ > 0) return;
    ChangeLog changes = std::exchange(group_, ChangeLog());
    if (!changes.empty()) add({std::move(*groupName_), secondsNow(), false}, std::move(changes));
    groupName_.reset();
}

void History::forget() {
    for (Kept& kept : kept_) kept = Kept();
    group_ = ChangeLog();
}

std::optional<ChangeLog> History::changesOf(std::size_t step) {
    const Kept& kept = kept_.at(step);
    if (kept.changes) return kept.changes;
    if (!kept.place) return std::nullopt;
    const auto record = journal_.read(*kept.place);
    return record ? std::optional(changesIn(*record)) : std::nullopt;
}

void History::goTo(std::size_t position) {
    if (position > steps_.size()) return;
    if (position == position_) return;
    willChange();
    const auto session = provider_.connect("Data Source=\"" + project_ + "\";Mode=Read|Write|Share Deny None;");
    const auto tell = [this] {
        notePosition();
        if (changed) changed();
    };
    try {
        while (position_ != position) {
            const bool back = position < position_;
            const auto changes = changesOf(back ? position_ - 1 : position_);
            if (!changes) throw Error(automation::errFail, sentence::lost);
            carryOut(*session, *changes, back ? Direction::back : Direction::forth);
            position_ = back ? position_ - 1 : position_ + 1;
        }
    } catch (...) {
        tell();
        throw;
    }
    tell();
}

void History::notePosition() { (void)journal_.append(recordOf(position_)); }

}  // namespace hx::history
