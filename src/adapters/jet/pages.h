// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "adapters/jet/journal.h"
#include "adapters/jet/page_cache.h"
#include "adapters/jet/storage.h"
#include "adapters/jet/user_file.h"

namespace hx::jet {

/// The pages of a project, as of one moment for who reads and whole or not at all for who writes. Everything throws
/// automation::Error; after an error in a transaction that writes only rollback() is left.
class Pages {
  public:
    /// Reads nothing yet. With `readOnly` nothing is ever written beside the file either, but what undoes a broken
    /// transaction of another program.
    explicit Pages(Storage& storage, bool readOnly = false);
    ~Pages();
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    /// Whoever reads does so between these two; they may be nested. Waits for who is just writing.
    void beginRead();
    void endRead() noexcept;
    [[nodiscard]] bool isReading() const noexcept { return readers_ > 0; }

    /// About so many pages stay in memory in a transaction that writes; those beyond go to the file before it holds.
    void keepWriting(std::size_t pages) noexcept { keptWriting_ = pages; }

    /// A transaction that writes. It reads as well.
    void beginWrite();
    [[nodiscard]] bool isWriting() const noexcept { return writing_; }
    /// A change begins that holds as a whole or not at all: an error before it ends loses the transaction.
    void beginChange();
    void endChange() noexcept { failed_ = false; }
    void lose() noexcept { failed_ = true; }
    [[nodiscard]] bool isFailed() const noexcept { return failed_; }
    /// How many changes there were.
    [[nodiscard]] std::uint64_t changes() const noexcept { return changes_; }
    /// Durable when it returns.
    void commit();
    void rollback() noexcept;

    /// Within a transaction: what is written from here on can be taken back alone. Numbered from 0.
    void savepoint(int number);
    void release(int number);
    void rollbackTo(int number);

    [[nodiscard]] std::uint32_t count() const noexcept { return count_; }
    [[nodiscard]] PageRef read(std::uint32_t page);
    /// The same to be changed.
    [[nodiscard]] PageRef write(std::uint32_t page);
    /// A new page of zeros at the end of the file.
    [[nodiscard]] PageRef append();

    /// Another number once anything that had been read may have changed other than by a transaction of this object
    /// that holds.
    [[nodiscard]] std::uint64_t generation() const noexcept { return generation_; }
    /// Another number once another has changed the file.
    [[nodiscard]] std::int64_t othersChanges();
    [[nodiscard]] const std::string& path() const noexcept { return storage_.path(); }
    [[nodiscard]] bool isReadOnly() const noexcept { return readOnly_; }

  private:
    struct Savepoint {
        int number = 0;
        std::unordered_map<std::uint32_t, std::unique_ptr<PageBytes>> before;  // null: as the file had it
        std::uint32_t count = 0;
    };

    void takeShared();
    void undoBrokenTransaction();
    void noticeChanges();
    void keepBefore(const Frame& frame);
    [[nodiscard]] Frame& frame(std::uint32_t page);
    void makeRoom();
    /// Puts what has changed into the file: all, or what nobody holds, as he may go on to change it.
    enum class Which : std::uint8_t { all, unheld };
    void writeOut(Which which);
    void takeBack(Savepoint& savepoint);
    void putOriginalsBack();
    void removeJournal();
    void forgetChanges() noexcept;
    void leaveTransaction() noexcept;

    Storage& storage_;
    std::unique_ptr<File> file_;
    std::unique_ptr<UserFile> users_;
    std::string otherUser_;
    Journal journal_;
    PageCache cache_;
    std::vector<Savepoint> savepoints_;
    // Reading needs little; who changes many rows goes to all indexes at random.
    static constexpr std::size_t keptReading = 512;
    std::size_t keptWriting_ = 8192;
    int readers_ = 0;
    std::uint32_t count_ = 0, countBefore_ = 0;  // now, and before the transaction
    std::uint64_t generation_ = 1, changes_ = 0;
    std::int64_t seenChanges_ = -1;
    std::int64_t others_ = 0;
    bool readOnly_;
    bool writing_ = false;
    bool writtenOut_ = false;  // pages of the transaction stand in the file already
    bool failed_ = false;      // the transaction can only be taken back
};

/// Reads for as long as it lives.
class Reading {
  public:
    explicit Reading(Pages& pages) : pages_(pages) { pages_.beginRead(); }
    ~Reading() { pages_.endRead(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

  private:
    Pages& pages_;
};

}  // namespace hx::jet
