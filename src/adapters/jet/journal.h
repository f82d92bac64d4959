// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

#include "adapters/jet/page_cache.h"
#include "adapters/jet/storage.h"

namespace hx::jet {

/// The original pages of a transaction, in a file beside the project. While that file exists the transaction does not
/// hold: whoever opens the project next puts the pages back.
///
/// The file begins with a mark, a number that the sums of its records begin with, and how many pages the project had.
/// Each record is a page's number, the page and a sum over both. A record whose sum is wrong ends the journal: it was
/// never on the disk as a whole, so that nothing has been changed yet that it could put back.
class Journal {
  public:
    explicit Journal(Storage& storage);

    /// A transaction on a project of so many pages begins. Nothing is written yet.
    void begin(std::uint32_t pages);
    [[nodiscard]] bool holds(std::uint32_t page) const { return records_.contains(page); }
    void add(std::uint32_t page, const Byte* bytes);
    /// Makes the file, if it is not there yet.
    void start();
    /// The page as it was.
    void read(std::uint32_t page, Byte* bytes);
    /// Returns when a power failure can no longer take it.
    void sync();
    /// The transaction holds from here on, or has been undone. After an error it does where the journal does not exist.
    void remove();
    /// Forgets it without touching the file.
    void close() noexcept;
    [[nodiscard]] bool isOpen() const noexcept { return file_ != nullptr; }

    /// Whether a transaction has left one behind, or is under way.
    [[nodiscard]] bool exists() const { return storage_.exists(path_); }
    /// Gives all pages of a journal that was left behind and how many pages there were at last; false when it is none.
    using Receiver = std::function<void(std::uint32_t page, Bytes bytes)>;
    [[nodiscard]] bool replay(const Receiver& receive, std::uint32_t& pages);

  private:
    static constexpr std::uint32_t headSize = 32;
    static constexpr std::uint32_t recordSize = pageSize + 8;
    static constexpr std::size_t writtenTogether = std::size_t{recordSize} * 64;

    [[nodiscard]] std::uint32_t sum(std::uint32_t page, const Byte* bytes) const noexcept;
    void flush();

    Storage& storage_;
    std::string path_;
    std::unique_ptr<File> file_;
    std::unordered_map<std::uint32_t, std::uint32_t> records_;  // the page's record
    Buffer waiting_;                                            // not written yet
    std::uint64_t size_ = 0;                                    // written
    std::uint32_t salt_ = 0;
    std::uint32_t pages_ = 0;
};

}  // namespace hx::jet
