// SPDX-License-Identifier: MIT
#include "adapters/jet/page_cache.h"

#include <algorithm>

namespace hx::jet {

namespace {

constexpr std::uint32_t nowhere = 0xFFFFFFFF;

}  // namespace

Frame& PageCache::add(std::uint32_t page) {
    if (page >= byNumber_.size()) byNumber_.resize(std::max<std::size_t>(page + 1, byNumber_.size() * 2));
    if (free_.empty()) {
        free_.reserve(frames_.size() + 1);  // what is dropped later is so without asking for memory
        frames_.push_back(std::make_unique<Frame>());
        frames_.back()->number = nowhere;
        free_.push_back(frames_.back().get());
    }
    Frame& frame = *free_.back();
    free_.pop_back();
    frame.number = page;
    frame.changed = frame.hasEnds = false;
    frame.used = true;
    byNumber_[page] = &frame;
    return frame;
}

void PageCache::drop(Frame& frame) noexcept {
    byNumber_[frame.number] = nullptr;
    frame.number = nowhere;
    frame.changed = false;
    free_.push_back(&frame);
}

void PageCache::shrink(std::size_t most) noexcept {
    // Twice round: the first round forgets who has used what.
    for (std::size_t left = frames_.size() * 2; left > 0 && size() > most; --left) {
        hand_ = hand_ + 1 < frames_.size() ? hand_ + 1 : 0;
        Frame& frame = *frames_[hand_];
        if (frame.number == nowhere || frame.users > 0 || frame.changed) continue;
        if (frame.used) frame.used = false;
        else drop(frame);
    }
}

void PageCache::dropAll() noexcept {
    for (const auto& frame : frames_) {
        if (frame->number != nowhere && frame->users == 0) drop(*frame);
    }
}

}  // namespace hx::jet
