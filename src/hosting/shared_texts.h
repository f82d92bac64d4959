// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "automation/key_index.h"
#include "hosting/chunked_list.h"

namespace hx::hosting {

/// Texts that many share, each kept once under a number. 0 is the empty text.
class SharedTexts {
  public:
    SharedTexts() { clear(); }
    /// The number of a text, which is kept from now on.
    [[nodiscard]] std::uint32_t numberOf(std::string_view text) {
        if (text.empty()) return 0;
        // Neighbours tend to share theirs, or those with the next but one.
        if (texts_[last_] == text) return last_;
        std::swap(last_, beforeLast_);
        if (texts_[last_] == text) return last_;
        const auto next = static_cast<std::uint32_t>(texts_.size());
        const auto same = [&](std::uint32_t number) { return texts_[number] == text; };
        const auto known = index_.insert(automation::KeyIndex::hashOf(text), next, same);
        last_ = known != automation::KeyIndex::none ? known : next;
        if (last_ == next) texts_.append() = text;
        return last_;
    }
    [[nodiscard]] const std::string& operator[](std::uint32_t number) const noexcept { return texts_[number]; }
    void clear() {
        index_.clear();
        texts_.clear();
        texts_.append();
        last_ = beforeLast_ = 0;
    }

  private:
    ChunkedList<std::string> texts_;
    automation::KeyIndex index_;
    std::uint32_t last_ = 0, beforeLast_ = 0;
};

}  // namespace hx::hosting
