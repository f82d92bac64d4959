// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "ado/connection.h"
#include "ado/criterion.h"
#include "ado/cursor.h"
#include "ado/page_cache.h"

namespace hx::ado {

class KeyMarks;
class Keyset;

/// A key as the value of its column.
[[nodiscard]] automation::Variant keyValue(Key key);

/// The keys of a keyset's rows under one filter, in the order of the command, with the pages that were read of them.
/// The keys are read when first needed. Cursors that are attached stay on their rows.
class KeyList {
  public:
    KeyList(Keyset& owner, std::optional<Criterion> filter) : owner_(owner), filter_(std::move(filter)) {}

    /// Whether reading the keys again in this state of the database would give the same.
    [[nodiscard]] bool holdsAt(const std::optional<Connection::State>& state) const {
        return state && readAt_ == state;
    }

    [[nodiscard]] std::size_t size() { return keys().size(); }
    [[nodiscard]] Key key(std::size_t position) { return keys()[position]; }
    /// Where the key stands, looking around the last answer first.
    [[nodiscard]] std::optional<std::size_t> find(Key key);
    /// The next row from `start` on (included) that matches.
    [[nodiscard]] std::optional<std::size_t> search(const Criterion& criterion, std::size_t start,
                                                    SearchDirection direction);

    /// False when the row is gone from the database although its key is still here.
    [[nodiscard]] bool exists(std::size_t position) { return page(position, 0).exists(position); }
    /// The stored value of a column other than the key; null when the row is gone.
    [[nodiscard]] const automation::Variant* value(std::size_t position, std::size_t column) {
        const Page& found = page(position, columnBit(column));
        return found.exists(position) ? &found.value(position, column) : nullptr;
    }

    /// Gives these columns of all rows, as Rowset::scan does.
    void giveAll(std::span<const std::size_t> columns, const StoredRowReceiver& receive);
    /// Gives `count` rows from `first` on to the sink, with only these columns; they are not kept.
    void read(std::size_t first, std::size_t count, ColumnMask columns, RowSink& sink);

    void attach(Cursor& cursor) { cursors_.push_back(&cursor); }
    void detach(Cursor& cursor) noexcept { std::erase(cursors_, &cursor); }

    // What the owner tells: a row was stored, changed, deleted; all pages are old; keys and pages are old.
    void added(Key key);
    void changed(Key key);
    void erased(Key key);
    void erased(const KeyMarks& keys);
    /// All that was changed between two states of the database is known here.
    void knows(const std::optional<Connection::State>& before, const std::optional<Connection::State>& after) {
        if (readAt_ && readAt_ == before) readAt_ = after;
    }
    void dropPages() noexcept { pages_.clear(); }
    void dropKeys();

  private:
    const RowKeys& keys();
    const Page& page(std::size_t position, ColumnMask columns);
    std::optional<std::size_t> scan(const Criterion& criterion, std::size_t start, std::size_t count,
                                    SearchDirection direction);
    std::optional<std::size_t> firstOf(const RowKeys& hits, std::size_t start, SearchDirection direction);
    bool matchesAt(const Criterion& criterion, std::size_t position);

    Keyset& owner_;
    std::optional<Criterion> filter_;
    std::optional<RowKeys> keys_;
    std::optional<Connection::State> readAt_;  // the state of the database that the keys are of
    std::vector<Key> addedBefore_;             // rows stored while the keys had not been read
    PageCache pages_;
    std::vector<Cursor*> cursors_;
    std::size_t hint_ = 0;
};

}  // namespace hx::ado
