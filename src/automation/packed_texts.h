// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace hx::automation {

/// Keeps many small texts packed one behind the other. None of them moves before clear().
class PackedTexts {
  public:
    [[nodiscard]] std::string_view keep(std::string_view text) {
        if (text.empty()) return {};
        if (text.size() > room_) add(text.size());
        char* const at = end_;
        std::memcpy(at, text.data(), text.size());
        end_ += text.size();
        room_ -= text.size();
        size_ += text.size();
        return {at, text.size()};
    }
    [[nodiscard]] std::size_t size() const noexcept { return size_; }  ///< in bytes
    void clear() noexcept {
        chunks_.clear();
        end_ = nullptr;
        room_ = size_ = 0;
    }

  private:
    void add(std::size_t needed) {
        constexpr std::size_t usual = std::size_t{64} * 1024;
        const std::size_t size = needed > usual ? needed : usual;
        chunks_.push_back(std::make_unique_for_overwrite<char[]>(size));
        end_ = chunks_.back().get();
        room_ = size;
    }

    std::vector<std::unique_ptr<char[]>> chunks_;
    char* end_ = nullptr;  ///< of the texts in the last chunk
    std::size_t room_ = 0, size_ = 0;
};

}  // namespace hx::automation
