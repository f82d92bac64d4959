// SPDX-License-Identifier: MIT
#include "ado/keyset.h"

#include <algorithm>

#include "ado/errors.h"
#include "ado/key_marks.h"
#include "automation/text_list.h"

namespace hx::ado {

namespace {

// A loop asks for a few columns; whoever asks for more than these walks the whole row.
constexpr int columnsBeforeAll = 4;
// So few columns are read together from the start.
constexpr std::size_t narrow = 6;

}  // namespace

Keyset::Keyset(std::shared_ptr<Connection> connection, std::unique_ptr<Rowset> rowset)
    : connection_(std::move(connection)),
      rowset_(std::move(rowset)),
      columns_(rowset_->columns()),
      all_(std::make_shared<KeyList>(*this, std::nullopt)),
      wanted_(columns_.size() <= narrow ? ~ColumnMask{0} : 0),
      seenWrites_(connection_->writes()),
      seenRollbacks_(connection_->rollbacks()) {
    connection_->attach(*this);
}

Keyset::~Keyset() { connection_->detach(*this); }

std::shared_ptr<KeyList> Keyset::filtered(Criterion filter) {
    std::erase_if(filtered_, [](const auto& list) { return list.expired(); });
    auto list = std::make_shared<KeyList>(*this, std::move(filter));
    filtered_.push_back(list);
    return list;
}

template <class Action>
void Keyset::forEachList(Action&& action) {
    action(*all_);
    for (const auto& weak : filtered_) {
        if (const auto list = weak.lock()) action(*list);
    }
}

template <class Action>
void Keyset::write(Action&& action) {
    Rowset& open = rowset();
    refresh();
    try {
        connection_->withSession([&](Session&) { action(open); });
    } catch (const automation::Error&) {
        dropPages();  // a refused write often means that somebody else changed the row
        throw;
    }
    connection_->noteWrite();
    seenWrites_ = connection_->writes();
}

Key Keyset::insert(std::span<const ColumnValue> values, KeyList& storing) {
    Key key = 0;
    write([&](Rowset& open) { key = open.insert(values); });
    all_->added(key);
    if (&storing != all_.get()) storing.added(key);
    return key;
}

void Keyset::insertAll(std::span<const std::size_t> columns, RowSource& rows) {
    try {
        write([&](Rowset& open) { open.insertAll(columns, rows); });
    } catch (...) {
        connection_->noteWrite();  // rows before the failing one may be stored
        dropKeys();
        throw;
    }
    dropKeys();
}

void Keyset::update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read) {
    write([&](Rowset& open) { open.update(key, values, read); });
    forEachList([&](KeyList& list) { list.changed(key); });
}

void Keyset::remove(Key key) {
    write([&](Rowset& open) { open.remove(key); });
    forEachList([&](KeyList& list) { list.erased(key); });
}

void Keyset::remove(std::span<const Key> keys) {
    KeyMarks wanted, gone;
    for (const Key key : keys) wanted.insert(key);
    std::vector<Key> rows;
    const std::size_t size = all_->size();
    for (std::size_t i = 0; i < size; ++i) {
        if (wanted.contains(all_->key(i))) rows.push_back(all_->key(i));
    }
    std::ranges::sort(rows);  // as they lie in the database
    const auto before = databaseState();
    const auto forget = [&] {
        auto after = before;
        if (after) after->writes = connection_->writes();
        forEachList([&](KeyList& list) {
            list.erased(gone);
            list.knows(before, after);
        });
    };
    try {
        for (const Key key : rows) {
            write([&](Rowset& open) { open.remove(key); });
            gone.insert(key);
        }
    } catch (...) {
        forget();
        throw;
    }
    forget();
}

void Keyset::dropKeys() {
    forEachList([](KeyList& list) { list.dropKeys(); });
}

void Keyset::dropPages() noexcept {
    forEachList([](KeyList& list) { list.dropPages(); });
}

void Keyset::forgetOld() {
    seenWrites_ = connection_->writes();
    if (seenRollbacks_ == connection_->rollbacks()) return dropPages();
    seenRollbacks_ = connection_->rollbacks();
    dropKeys();
}

RowKeys Keyset::readKeys(const Criterion* filter) {
    Rowset& open = rowset();
    RowKeys keys = connection_->withSession([&](Session&) { return open.keys(filter); });
    return sorting_ ? sorted(std::move(keys)) : keys;
}

void Keyset::sortBy(Sorting sorting) {
    sorting_ = std::move(sorting);
    dropKeys();
}

namespace {

/// One column of some rows; empty where a row is gone.
class OneColumn : public RowSink {
  public:
    OneColumn(std::size_t column, std::size_t rows) : values(rows), column_(column) {}
    void row(std::size_t index, std::span<automation::Variant> read) override {
        values[index] = std::move(read[column_]);
    }
    std::vector<automation::Variant> values;

  private:
    std::size_t column_;
};

}  // namespace

RowKeys Keyset::sorted(RowKeys keys) {
    constexpr std::size_t rowsTogether = 1024;
    keys.sort(false);  // as they lie in the database, and where they show the same
    automation::TextList shown;
    for (std::size_t first = 0; first < keys.size(); first += rowsTogether) {
        std::vector<Key> asked(std::min(rowsTogether, keys.size() - first));
        for (std::size_t i = 0; i < asked.size(); ++i) asked[i] = keys[first + i];
        OneColumn read(sorting_->column, asked.size());
        readRows(asked, columnBit(sorting_->column), read);
        for (const automation::Variant& value : read.values) shown.appendFolded(sorting_->display(value));
    }
    RowKeys result;
    for (const std::uint32_t number : automation::inOrder(shown, sorting_->descending)) result.append(keys[number]);
    return result;
}

void Keyset::readRows(std::span<const Key> keys, ColumnMask mask, RowSink& sink) {
    Rowset& open = rowset();
    connection_->withSession([&](Session&) { open.read(keys, mask, sink); });
}

void Keyset::scan(const RowKeys* keys, std::span<const std::size_t> columns, const StoredRowReceiver& receive) {
    Rowset& open = rowset();
    connection_->withSession([&](Session&) {
        if (keys == nullptr) open.scan(columns, receive);
        else scanByKeys(open, *keys, columns, receive);
    });
}

void Keyset::want(ColumnMask columns) noexcept {
    if ((columns & ~wanted_) == 0) return;
    wanted_ |= columns;
    if (++timesWidened_ >= columnsBeforeAll) wanted_ = ~ColumnMask{0};
}

void Keyset::connectionCloses() noexcept { rowset_.reset(); }

Rowset& Keyset::rowset() {
    if (!rowset_) throwObjectClosed();
    return *rowset_;
}

}  // namespace hx::ado
