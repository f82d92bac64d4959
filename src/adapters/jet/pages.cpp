// SPDX-License-Identifier: MIT
#include "adapters/jet/pages.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

using automation::Error;

constexpr std::uint32_t mostPages = 0x80000;  // two gigabytes

}  // namespace

Pages::Pages(Storage& storage, bool readOnly)
    : storage_(storage),
      file_(storage.open(Storage::Kind::project, storage.path())),
      journal_(storage),
      readOnly_(readOnly || file_->isReadOnly()) {
    if (readOnly_) return;
    otherUser_ = UserFile::otherUser(storage);
    users_ = UserFile::open(storage);
}

Pages::~Pages() {
    rollback();
    file_->unlock(File::Lock::none);
}

void Pages::beginRead() {
    if (readers_ == 0) {
        takeShared();
        try {
            noticeChanges();
        } catch (...) {
            file_->unlock(File::Lock::none);
            throw;
        }
    }
    ++readers_;
}

void Pages::endRead() noexcept {
    if (--readers_ > 0) return;
    file_->unlock(File::Lock::none);
    cache_.shrink(keptReading);
}

void Pages::takeShared() {
    for (int waits = 0;; ++waits) {
        file_->lock(File::Lock::shared);
        try {
            // Who writes just now has not touched the file yet.
            if (!journal_.exists() || file_->isReserved()) return;
            if (file_->isReadOnly()) throw Error(ado::dbErrUnspecified, sentence::brokenReadOnly, {path()});
            if (file_->tryLock(File::Lock::exclusive)) {
                if (journal_.exists()) undoBrokenTransaction();
                return file_->unlock(File::Lock::shared);
            }
        } catch (...) {
            file_->unlock(File::Lock::none);
            throw;
        }
        file_->unlock(File::Lock::none);
        if (!storage_.wait(waits)) throw Error(ado::dbErrUnspecified, sentence::locked, {path()});
    }
}

void Pages::undoBrokenTransaction() {
    std::uint32_t pages = 0;
    const auto put = [&](std::uint32_t page, Bytes bytes) {
        if (page < pages) file_->write(std::uint64_t{page} * pageSize, bytes);
    };
    if (journal_.replay(put, pages)) {
        file_->truncate(std::uint64_t{pages} * pageSize);
        file_->sync();
    }
    journal_.remove();
    seenChanges_ = -1;
}

// Without a file that counts changes whatever is in memory may be old.
void Pages::noticeChanges() {
    const std::int64_t changes = users_ ? users_->changes() : -1;
    if (changes >= 0 && changes == seenChanges_) return;
    if (seenChanges_ >= 0) ++others_;
    seenChanges_ = changes;
    ++generation_;
    cache_.dropAll();
    count_ = static_cast<std::uint32_t>(std::min<std::uint64_t>(file_->size() / pageSize, mostPages));
}

std::int64_t Pages::othersChanges() {
    const Reading reading(*this);
    return others_;
}

void Pages::beginWrite() {
    if (!otherUser_.empty()) throw Error(ado::dbErrUnspecified, sentence::inUse, {path(), otherUser_});
    if (readOnly_) throw Error(ado::dbErrUnspecified, sentence::writeProtected, {path()});
    const bool alone = readers_ == 0;
    beginRead();
    try {
        if (!alone) file_->lock(File::Lock::reserved);
        for (int waits = 0; alone && !file_->tryLock(File::Lock::reserved); ++waits) {
            endRead();
            const bool waited = storage_.wait(waits);
            beginRead();
            if (!waited) throw Error(ado::dbErrUnspecified, sentence::locked, {path()});
        }
        countBefore_ = count_;
        journal_.begin(count_);
    } catch (...) {
        if (readers_ > 0) endRead();
        throw;
    }
    writing_ = true;
    writtenOut_ = failed_ = false;
}

void Pages::beginChange() {
    if (failed_) throw Error(ado::dbErrUnspecified, sentence::notWhole, {path()});
    failed_ = true;
    ++changes_;
}

void Pages::commit() {
    if (failed_) throw Error(ado::dbErrUnspecified, sentence::notWhole, {path()});
    failed_ = true;
    if (journal_.isOpen() || count_ != countBefore_) {
        journal_.start();
        writeOut(Which::all);
        if (file_->size() > std::uint64_t{count_} * pageSize) file_->truncate(std::uint64_t{count_} * pageSize);
        file_->sync();
        if (users_) users_->countChange();
        removeJournal();
        if (users_) seenChanges_ = users_->changes();
    }
    leaveTransaction();
}

// Once it is gone there is nothing to take back, even where the disk does not confirm that.
void Pages::removeJournal() {
    try {
        journal_.remove();
    } catch (const Error&) {
        if (journal_.exists()) throw;
        journal_.close();
        seenChanges_ = -1;
        leaveTransaction();
        throw Error(ado::dbErrUnspecified, sentence::notConfirmed, {path()});
    }
}

void Pages::writeOut(Which which) {
    std::vector<Frame*> changed;
    cache_.forEach([&](Frame& frame) {
        if (frame.changed && (frame.users == 0 || which == Which::all)) changed.push_back(&frame);
    });
    std::ranges::sort(changed, {}, &Frame::number);
    journal_.sync();
    file_->lock(File::Lock::exclusive);
    writtenOut_ = true;
    for (Frame* frame : changed) {
        file_->write(std::uint64_t{frame->number} * pageSize, frame->bytes);
        frame->changed = false;
    }
}

void Pages::rollback() noexcept {
    if (!writing_) return;
    forgetChanges();
    try {
        if (writtenOut_) putOriginalsBack();
        if (journal_.isOpen()) journal_.remove();
    } catch (const std::exception&) {
        // The journal stays, and whoever reads next puts the pages back.
        seenChanges_ = -1;
    }
    journal_.close();
    count_ = countBefore_;
    ++generation_;
    leaveTransaction();
}

void Pages::putOriginalsBack() {
    std::uint32_t pages = 0;
    journal_.sync();
    const auto put = [&](std::uint32_t page, Bytes bytes) { file_->write(std::uint64_t{page} * pageSize, bytes); };
    if (!journal_.replay(put, pages)) throw Error(ado::dbErrUnspecified, sentence::notWhole, {path()});
    file_->truncate(std::uint64_t{countBefore_} * pageSize);
    file_->sync();
}

// A page that a reader holds is put right where it stands.
void Pages::forgetChanges() noexcept {
    cache_.forEach([&](Frame& frame) {
        const bool journaled = journal_.holds(frame.number);
        if (!frame.changed && !(writtenOut_ && (journaled || frame.number >= countBefore_))) return;
        if (frame.users == 0) return cache_.drop(frame);
        frame.changed = frame.hasEnds = false;
        try {
            if (journaled) return journal_.read(frame.number, frame.bytes.data());
        } catch (const std::exception&) {
            // Nothing can be read then; what is left of the file says so.
        }
        frame.bytes.fill(0);
    });
}

void Pages::leaveTransaction() noexcept {
    savepoints_.clear();
    writing_ = writtenOut_ = failed_ = false;
    file_->unlock(File::Lock::shared);
    endRead();
}

void Pages::savepoint(int number) {
    if (!savepoints_.empty() && savepoints_.back().number >= number) return;
    savepoints_.push_back({number, {}, count_});
}

void Pages::release(int number) {
    while (!savepoints_.empty() && savepoints_.back().number >= number) {
        Savepoint last = std::move(savepoints_.back());
        savepoints_.pop_back();
        if (!savepoints_.empty()) savepoints_.back().before.merge(last.before);
    }
}

void Pages::rollbackTo(int number) {
    failed_ = true;
    for (auto at = savepoints_.rbegin(); at != savepoints_.rend() && at->number >= number; ++at) takeBack(*at);
    release(number + 1);
    ++generation_;
    failed_ = false;
}

void Pages::takeBack(Savepoint& savepoint) {
    for (const auto& [page, bytes] : savepoint.before) {
        Frame* const known = cache_.find(page);
        Frame& frame = known != nullptr ? *known : cache_.add(page);
        frame.changed = true;
        frame.hasEnds = false;
        if (bytes) frame.bytes = *bytes;
        else journal_.read(page, frame.bytes.data());
    }
    savepoint.before.clear();
    for (std::uint32_t page = savepoint.count; page < count_; ++page) {
        Frame* const frame = cache_.find(page);
        if (frame == nullptr) continue;
        frame->changed = false;
        if (frame->users == 0) cache_.drop(*frame);
    }
    count_ = savepoint.count;
}

Frame& Pages::frame(std::uint32_t page) {
    if (Frame* const known = cache_.find(page)) {
        known->used = true;
        return *known;
    }
    require(page < count_, page, sentence::noPage);
    makeRoom();
    Frame& frame = cache_.add(page);
    try {
        file_->read(std::uint64_t{page} * pageSize, frame.bytes);
    } catch (...) {
        cache_.drop(frame);
        throw;
    }
    return frame;
}

void Pages::makeRoom() {
    const std::size_t kept = writing_ ? keptWriting_ : keptReading;
    if (cache_.size() < kept) return;
    cache_.shrink(kept - kept / 16);
    if (!writing_ || cache_.size() < kept) return;
    writeOut(Which::unheld);
    cache_.shrink(kept - kept / 16);
}

PageRef Pages::read(std::uint32_t page) { return PageRef(frame(page)); }

PageRef Pages::write(std::uint32_t page) {
    Frame& changed = frame(page);
    PageRef held(changed);
    if (!changed.changed || !savepoints_.empty()) keepBefore(changed);
    changed.changed = true;
    return held;
}

void Pages::keepBefore(const Frame& frame) {
    const bool original = frame.number < countBefore_ && !journal_.holds(frame.number);
    if (original) journal_.add(frame.number, frame.bytes.data());
    if (savepoints_.empty() || frame.number >= savepoints_.back().count) return;
    auto& before = savepoints_.back().before;
    if (before.contains(frame.number)) return;
    before.emplace(frame.number, original ? nullptr : std::make_unique<PageBytes>(frame.bytes));
}

PageRef Pages::append() {
    if (count_ >= mostPages) throw Error(ado::dbErrUnspecified, sentence::tooLarge, {path()});
    makeRoom();
    Frame& added = cache_.add(count_);
    ++count_;
    added.bytes.fill(0);
    added.changed = true;
    return PageRef(added);
}

}  // namespace hx::jet
