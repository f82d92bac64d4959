// SPDX-License-Identifier: MIT
#include "adapters/jet/table.h"

#include <algorithm>
#include <array>
#include <limits>

#include "adapters/jet/column_value.h"
#include "adapters/jet/database.h"
#include "adapters/jet/failure.h"
#include "adapters/jet/index_key.h"
#include "adapters/jet/long_value.h"
#include "adapters/jet/relations.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/standard_value.h"
#include "ado/types.h"

namespace hx::jet {

using ado::StoredValue;

namespace {

constexpr std::size_t pointerSize = 4;
constexpr int mostMoves = 8;

std::optional<std::size_t> keyIndexOf(const TableDefinition& table) {
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < table.indexes.size(); ++i) {
        const Index& index = table.indexes[i];
        const Column& column = table.columns[index.columns.front().column];
        const bool whole = column.type == ColumnType::longInteger && index.columns.size() == 1;
        const bool never = index.isRequired || column.isCounter || column.isRequired;
        if (!whole || !index.isUnique || !never || index.columns.front().descending) continue;
        if (!found || index.isPrimary) found = i;
    }
    return found;
}

// As the row's place and its key stand in an index.
Buffer keyOfNumber(std::int32_t number) {
    Buffer key{0x7F, 0, 0, 0, 0};
    putBig32(key.data() + 1, static_cast<std::uint32_t>(number) ^ 0x80000000);
    return key;
}

void requireFits(const Buffer& key) {
    if (key.size() > IndexTree::longestKey) {
        throw automation::Error(ado::dbErrCannotConvert, sentence::keyTooLong, {});
    }
}

}  // namespace

Table::Table(Database& database, TableDefinition definition)
    : database_(&database),
      definition_(std::move(definition)),
      rows_(database.pages(), database.space(), definition_.page, definition_.ownPages, definition_.freePages) {
    for (const Index& index : definition_.indexes) {
        trees_.emplace_back(database.pages(), database.space(), definition_.page, index);
    }
    for (const Column& column : definition_.columns) standards_.push_back(standardValueOf(column));
    keyIndex_ = keyIndexOf(definition_);
    if (keyIndex_) keyColumn_ = definition_.indexes[*keyIndex_].columns.front().column;
}

const Index* Table::unknownIndex() const noexcept {
    for (const Index& index : definition_.indexes) {
        for (const IndexColumn& part : index.columns) {
            if (!hasKnownKeys(column(part.column))) return &index;
        }
    }
    return nullptr;
}

void Table::requireWritable() const {
    const Index* const unknown = unknownIndex();
    if (unknown == nullptr) return;
    std::string order;
    for (const IndexColumn& part : unknown->columns) {
        const Column& column = this->column(part.column);
        if (!hasKnownKeys(column)) order = std::to_string(column.sortOrder) + "/" + std::to_string(column.sortVersion);
    }
    throw automation::Error(ado::dbErrUnspecified, sentence::unknownOrder, {definition_.name, unknown->name, order});
}

// --- reading

std::int32_t Table::lastCounter() {
    const PageRef page = database_->pages().read(definition_.page);
    return static_cast<std::int32_t>(get32(page.data() + TableDefinition::lastCounterAt));
}

std::uint32_t Table::rowCount() {
    return get32(database_->pages().read(definition_.page).data() + TableDefinition::rowsAt);
}

bool Table::read(Place place, Found& found) const {
    found.place = place;
    for (int moves = 0;; ++moves) {
        DataPage page = rows_.read(place.page);
        if (place.row >= page.rows()) return false;
        const std::uint16_t flags = page.flags(place.row);
        const std::span<Byte> bytes = page.row(place.row);
        if (flags == DataPage::moved && bytes.size() >= pointerSize) {
            require(moves < mostMoves, place.page, sentence::noRow);
            place = Place::get(bytes.data());
            continue;
        }
        // What a pointer leads to is hidden, and only that is a row.
        if (flags != (moves == 0 ? 0 : DataPage::hidden) && !(moves > 0 && flags == 0)) return false;
        found.row = Row(bytes, definition_, place.page);
        found.page = page.page();
        return true;
    }
}

std::optional<Place> Table::find(ado::Key key) {
    if (key < std::numeric_limits<std::int32_t>::min() || key > std::numeric_limits<std::uint32_t>::max()) return {};
    if (!keyIndex_) return Place::of(static_cast<std::uint32_t>(key));
    if (key > std::numeric_limits<std::int32_t>::max()) return {};
    const Buffer wanted = keyOfNumber(static_cast<std::int32_t>(key));
    const IndexTree::Cursor cursor(trees_[*keyIndex_], wanted);
    if (cursor.atEnd() || !cursor.leaf().equalsKey(cursor.entry(), wanted)) return {};
    return cursor.place();
}

ado::Key Table::keyOf(const Found& found) const {
    if (!keyColumn_) return found.place.number();
    const StoredColumn key = found.row.column(column(*keyColumn_));
    require(key.has_value(), found.place.page, sentence::noRow);
    return static_cast<std::int32_t>(get32(key->data()));
}

StoredValue Table::value(const Row& row, std::size_t number, std::string& room) const {
    const Column& column = this->column(number);
    const StoredColumn stored = row.column(column);
    if (!column.isLong() || !stored) return valueOf(column, stored, room);
    Buffer content;
    LongValues::read(database_->pages(), content, *stored, longestValue);
    if (column.type == ColumnType::memo) return valueOf(column, Bytes(content), room);
    room.assign(content.begin(), content.end());
    return {StoredValue::Kind::bytes, 0, 0, room};
}

void Table::remember(const Found& found, Remembered& remembered) const {
    const std::size_t count = definition_.columns.size();
    remembered.rooms.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        StoredValue value = this->value(found.row, i, remembered.rooms[i]);
        if (value.kind == StoredValue::Kind::bytes) value.text = remembered.rooms[i] = value.text;
        remembered.values.push_back(value);
    }
}

void Table::tell(const Remembered* before, Place after, ado::Key key) const {
    ado::RowWatcher* const watcher = database_->watcher();
    if (watcher == nullptr) return;
    Remembered now;
    if (Found found; after.page != 0 && read(after, found)) {
        remember(found, now);
        // A row whose key is changed goes away under the one and comes under the other.
        if (const ado::Key other = keyOf(found); before != nullptr && other != key) {
            watcher->changed({definition_.name, key, before->values, {}});
            return watcher->changed({definition_.name, other, {}, now.values});
        }
    }
    watcher->changed(
        {definition_.name, key, before == nullptr ? std::span<const StoredValue>() : before->values, now.values});
}

// --- rows

// The row with its long values not stored yet: they take the same room in it.
Buffer Table::plan(const Draft& draft) const {
    static constexpr Byte head[LongValues::headSize + LongValues::mostInRow] = {};
    std::vector<StoredColumn> columns = draft.columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!column(i).isLong() || !draft.given[i] || !draft.values[i]) continue;
        const std::size_t size = draft.values[i]->size();
        columns[i] = Bytes(head, LongValues::headSize + (size <= LongValues::mostInRow ? size : 0));
    }
    Buffer bytes;
    buildRow(bytes, definition_, columns);
    if (bytes.size() > DataPage::longestRow) {
        throw automation::Error(ado::dbErrCannotConvert, sentence::rowTooLong, {definition_.name});
    }
    return bytes;
}

void Table::storeLongValues(Draft& draft, Buffer& row) {
    std::vector<std::optional<Draft::Part>> heads(definition_.columns.size());
    for (std::size_t i = 0; i < heads.size(); ++i) {
        if (!column(i).isLong() || !draft.given[i] || !draft.values[i]) continue;
        const std::size_t at = draft.heads.size();
        LongValues(database_->pages(), database_->space(), column(i)).write(draft.heads, *draft.values[i]);
        heads[i] = {at, draft.heads.size() - at};
    }
    if (draft.heads.empty()) return;
    for (std::size_t i = 0; i < heads.size(); ++i) {
        if (heads[i]) draft.columns[i] = Bytes(draft.heads).subspan(heads[i]->at, heads[i]->size);
    }
    buildRow(row, definition_, draft.columns);
}

Place Table::addRow(Bytes bytes) {
    const auto added = rows_.add(static_cast<std::uint32_t>(bytes.size()));
    std::ranges::copy(bytes, added.page.row(added.row).begin());
    return added.place();
}

void Table::count(std::int32_t by, const std::optional<std::int32_t>& counter) {
    const PageRef page = database_->pages().write(definition_.page);
    Byte* const rows = page.data() + TableDefinition::rowsAt;
    put32(rows, get32(rows) + static_cast<std::uint32_t>(by));
    if (counter) put32(page.data() + TableDefinition::lastCounterAt, static_cast<std::uint32_t>(*counter));
}

ado::Key Table::insert(Values values) {
    requireWritable();
    Draft draft;
    fill(draft, values);
    number(draft);
    draft.columns.resize(definition_.columns.size());
    for (std::size_t i = 0; i < draft.columns.size(); ++i) {
        if (const auto& part = draft.parts[i]) draft.columns[i] = Bytes(draft.bytes).subspan(part->at, part->size);
        draft.given[i] = true;
    }
    draft.values = draft.columns;
    requireValues(draft);
    std::vector<Buffer> keys(definition_.indexes.size());
    for (const Index& index : definition_.indexes) {
        makeKey(keys[index.number], index, draft);
        requireFits(keys[index.number]);
        requireUnique(index, keys[index.number], draft, {});
    }
    Relations(*database_).requireParents(*this, draft.values);
    Buffer row = plan(draft);
    Pages& pages = database_->pages();
    pages.beginChange();
    storeLongValues(draft, row);
    const Place place = addRow(row);
    for (const Index& index : definition_.indexes) {
        if (isIndexed(index, draft)) addEntry(index, keys[index.number], place);
    }
    count(1, draft.counter);
    pages.endChange();
    const ado::Key key = keyColumn_ ? static_cast<std::int32_t>(get32(draft.columns[*keyColumn_]->data()))
                                    : static_cast<ado::Key>(place.number());
    tell(nullptr, place, key);
    return key;
}

bool Table::update(Place place, Values values) {
    requireWritable();
    Found found;
    if (!read(place, found)) return false;
    const ado::Key key = keyOf(found);
    Remembered remembered;
    if (database_->watcher() != nullptr) remember(found, remembered);
    const Draft before = draftOf(found.row);
    Draft draft;
    fill(draft, values);
    draft.columns = before.columns;
    draft.values = before.values;
    for (std::size_t i = 0; i < draft.columns.size(); ++i) {
        if (!draft.given[i]) continue;
        const auto& part = draft.parts[i];
        draft.columns[i] = draft.values[i] =
            part ? StoredColumn(Bytes(draft.bytes).subspan(part->at, part->size)) : std::nullopt;
    }
    requireValues(draft);
    struct Change {
        const Index* index;
        Buffer before, after;
    };
    std::vector<Change> changes;
    for (const Index& index : definition_.indexes) {
        const auto isGiven = [&](const IndexColumn& part) { return bool{draft.given[part.column]}; };
        if (std::ranges::none_of(index.columns, isGiven)) continue;
        Change change{&index, {}, {}};
        makeKey(change.before, index, before);
        makeKey(change.after, index, draft);
        if (change.before == change.after) continue;
        requireFits(change.after);
        requireUnique(index, change.after, draft, place);
        changes.push_back(std::move(change));
    }
    Relations relations(*database_);
    relations.requireParents(*this, draft.values, &before.values);
    relations.requireNoChildren(*this, before.values, &draft.values);
    Buffer row = plan(draft);
    Pages& pages = database_->pages();
    pages.beginChange();
    for (std::size_t i = 0; i < draft.columns.size(); ++i) {
        if (!column(i).isLong() || !draft.given[i] || !before.columns[i]) continue;
        LongValues(database_->pages(), database_->space(), column(i)).remove(*before.columns[i]);
    }
    storeLongValues(draft, row);
    replaceRow(found, row);
    for (const Change& change : changes) {
        if (isIndexed(*change.index, before)) (void)trees_[change.index->number].remove(change.before, place);
        if (isIndexed(*change.index, draft)) addEntry(*change.index, change.after, place);
    }
    pages.endChange();
    relations.changeChildren(*this, before.values, draft.values);
    tell(&remembered, place, key);
    return true;
}

// A row that does not go in where it stands moves, and leaves a pointer in its place.
void Table::replaceRow(const Found& found, Bytes bytes) {
    const auto size = static_cast<std::uint32_t>(bytes.size());
    Place at = found.place;
    DataPage page = rows_.write(at.page);
    const bool wasMoved = page.flags(at.row) == DataPage::moved;
    if (wasMoved) {
        at = Place::get(page.row(at.row).data());
        page = rows_.write(at.page);
    }
    if (page.canResize(at.row, size)) {
        page.resize(at.row, size);
        std::ranges::copy(bytes, page.row(at.row).begin());
        return;
    }
    if (wasMoved) rows_.remove(at);
    else page.resize(at.row, pointerSize);
    const auto added = rows_.add(size, DataPage::hidden);
    std::ranges::copy(bytes, added.page.row(added.row).begin());
    const DataPage first = rows_.write(found.place.page);
    added.place().put(first.row(found.place.row).data());
    DataPage(first).setFlags(found.place.row, DataPage::moved);
}

bool Table::remove(Place place) {
    requireWritable();
    Found found;
    if (!read(place, found)) return false;
    const ado::Key key = keyOf(found);
    Remembered remembered;
    if (database_->watcher() != nullptr) remember(found, remembered);
    const Draft draft = draftOf(found.row);
    found = {};
    Relations(*database_).requireNoChildren(*this, draft.values, nullptr);
    Pages& pages = database_->pages();
    pages.beginChange();
    Buffer indexKey;
    for (const Index& index : definition_.indexes) {
        makeKey(indexKey, index, draft);
        if (isIndexed(index, draft)) (void)trees_[index.number].remove(indexKey, place);
    }
    for (std::size_t i = 0; i < draft.columns.size(); ++i) {
        if (!column(i).isLong() || !draft.columns[i]) continue;
        LongValues(database_->pages(), database_->space(), column(i)).remove(*draft.columns[i]);
    }
    if (const DataPage page = rows_.read(place.page); page.flags(place.row) == DataPage::moved) {
        rows_.remove(Place::get(page.row(place.row).data()));
    }
    rows_.remove(place);
    count(-1);
    pages.endChange();
    tell(&remembered, {}, key);
    return true;
}

}  // namespace hx::jet
