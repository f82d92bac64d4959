// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "adapters/jet/bytes.h"

namespace hx::jet {

using PageBytes = std::array<Byte, pageSize>;

/// A page in memory.
struct Frame {
    PageBytes bytes;
    std::uint32_t number = 0;
    std::int32_t users = 0;
    bool changed = false;
    bool used = false;  // since the last search for room
    // Where the entries of an index page end, once somebody has read that; whoever changes its bytes otherwise forgets
    // it.
    bool hasEnds = false;
    std::vector<std::uint16_t> ends;
};

/// A page that stays in memory while it is held.
class PageRef {
  public:
    PageRef() = default;
    explicit PageRef(Frame& frame) noexcept : frame_(&frame) { ++frame_->users; }
    PageRef(const PageRef& other) noexcept : frame_(other.frame_) {
        if (frame_ != nullptr) ++frame_->users;
    }
    PageRef(PageRef&& other) noexcept : frame_(other.frame_) { other.frame_ = nullptr; }
    PageRef& operator=(PageRef other) noexcept {
        std::swap(frame_, other.frame_);
        return *this;
    }
    ~PageRef() {
        if (frame_ != nullptr) --frame_->users;
    }

    [[nodiscard]] explicit operator bool() const noexcept { return frame_ != nullptr; }
    [[nodiscard]] std::uint32_t number() const noexcept { return frame_->number; }
    [[nodiscard]] Byte* data() const noexcept { return frame_->bytes.data(); }
    [[nodiscard]] Frame& frame() const noexcept { return *frame_; }

  private:
    Frame* frame_ = nullptr;
};

/// The pages that are in memory, found by number.
class PageCache {
  public:
    /// Null when it is not in memory.
    [[nodiscard]] Frame* find(std::uint32_t page) const noexcept {
        return page < byNumber_.size() ? byNumber_[page] : nullptr;
    }
    /// A frame for the page, whose bytes are anything.
    [[nodiscard]] Frame& add(std::uint32_t page);
    /// Forgets pages that nobody holds and that have not changed, until at most so many are left.
    void shrink(std::size_t most) noexcept;
    /// Forgets the page. Nobody may hold it.
    void drop(Frame& frame) noexcept;
    /// Forgets all that nobody holds.
    void dropAll() noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return frames_.size() - free_.size(); }

    template <class Visit>
    void forEach(Visit&& visit) {
        for (const auto& frame : frames_) {
            if (find(frame->number) == frame.get()) visit(*frame);
        }
    }

  private:
    std::vector<Frame*> byNumber_;
    std::vector<std::unique_ptr<Frame>> frames_;
    std::vector<Frame*> free_;
    std::size_t hand_ = 0;
};

}  // namespace hx::jet
