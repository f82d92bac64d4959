// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "automation/text.h"

namespace hx::automation {

/// Many texts in one piece of memory, numbered from 0; no more than 4 GB (std::length_error).
class TextList {
  public:
    void append(std::string_view text) {
        bytes_ += text;
        ends_.push_back(end());
    }
    /// The text without case.
    void appendFolded(std::string_view text) {
        automation::appendFolded(bytes_, text);
        ends_.push_back(end());
    }
    /// Puts a character and a text without case behind the last one.
    void extendFolded(char separator, std::string_view text) {
        bytes_ += separator;
        automation::appendFolded(bytes_, text);
        ends_.back() = end();
    }
    void reserve(std::size_t texts, std::size_t bytes = 0) {
        ends_.reserve(texts);
        bytes_.reserve(bytes);
    }
    [[nodiscard]] std::size_t bytes() const noexcept { return bytes_.size(); }
    [[nodiscard]] std::size_t size() const noexcept { return ends_.size(); }
    [[nodiscard]] std::string_view operator[](std::size_t number) const {
        const std::size_t start = number == 0 ? 0 : ends_[number - 1];
        return std::string_view(bytes_).substr(start, ends_[number] - start);
    }

  private:
    [[nodiscard]] std::uint32_t end() const {
        if (bytes_.size() > std::numeric_limits<std::uint32_t>::max()) throw std::length_error("TextList");
        return static_cast<std::uint32_t>(bytes_.size());
    }
    std::string bytes_;
    std::vector<std::uint32_t> ends_;  // half the memory of sizes, which a million texts notice
};

/// The numbers of all texts in ascending or descending order of their bytes. Equal ones keep their order.
[[nodiscard]] std::vector<std::uint32_t> inOrder(const TextList& texts, bool descending = false);

}  // namespace hx::automation
