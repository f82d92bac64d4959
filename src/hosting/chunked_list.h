// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace hx::hosting {

/// A list that grows at its end and never moves an element: references stay valid.
template <class T>
class ChunkedList {
  public:
    [[nodiscard]] T& operator[](std::size_t index) noexcept { return chunks_[index / chunkSize][index % chunkSize]; }
    [[nodiscard]] const T& operator[](std::size_t index) const noexcept {
        return chunks_[index / chunkSize][index % chunkSize];
    }
    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    /// Adds an element in its initial state.
    T& append() {
        if (size_ == chunks_.size() * chunkSize) chunks_.push_back(std::make_unique<T[]>(chunkSize));
        return (*this)[size_++];
    }
    void clear() noexcept {
        chunks_.clear();
        size_ = 0;
    }

  private:
    static constexpr std::size_t chunkSize = 128;
    std::vector<std::unique_ptr<T[]>> chunks_;
    std::size_t size_ = 0;
};

}  // namespace hx::hosting
