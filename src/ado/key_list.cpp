// SPDX-License-Identifier: MIT
#include "ado/key_list.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "ado/key_marks.h"
#include "ado/keyset.h"

namespace hx::ado {

namespace {

// So many rows are compared here before the database is asked for the matching ones.
constexpr std::size_t scanBeforeAsking = 4 * PageCache::rowsPerPage;

std::optional<Key> soughtKey(const Criterion& criterion, const std::vector<Column>& columns) {
    const bool plain = criterion.kind == Criterion::Kind::compare && criterion.relation == Relation::equal;
    if (!plain || !columns[criterion.column].isKey || criterion.value.isNull()) return std::nullopt;
    const double number = criterion.value.asDouble();
    const auto key = static_cast<Key>(std::clamp(number, -9e15, 9e15));
    if (static_cast<double>(key) != number) return std::nullopt;
    return key;
}

}  // namespace

automation::Variant keyValue(Key key) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (key >= Limits::min() && key <= Limits::max()) return static_cast<std::int32_t>(key);
    return static_cast<double>(key);
}

const RowKeys& KeyList::keys() {
    owner_.refresh();
    if (!keys_) {
        readAt_ = owner_.databaseState();
        keys_ = owner_.readKeys(filter_ ? &*filter_ : nullptr);
        for (const Key key : std::exchange(addedBefore_, {})) {
            if (!keys_->find(key)) keys_->append(key);
        }
    }
    return *keys_;
}

std::optional<std::size_t> KeyList::find(Key key) {
    const auto found = keys().find(key, hint_);
    if (found) hint_ = *found;
    return found;
}

const Page& KeyList::page(std::size_t position, ColumnMask columns) {
    owner_.refresh();
    if (const Page* cached = pages_.find(position, columns)) return *cached;
    owner_.want(columns);
    const std::size_t first = position - position % PageCache::rowsPerPage;
    const std::size_t count = std::min(PageCache::rowsPerPage, size() - first);
    Page page(first, count, owner_.columns().size(), owner_.wanted());
    read(first, count, owner_.wanted(), page);
    return pages_.add(std::move(page), position);
}

void KeyList::read(std::size_t first, std::size_t count, ColumnMask columns, RowSink& sink) {
    const RowKeys& all = keys();
    std::vector<Key> asked(count);
    for (std::size_t i = 0; i < count; ++i) asked[i] = all[first + i];
    owner_.readRows(asked, columns, sink);
}

void KeyList::giveAll(std::span<const std::size_t> columns, const StoredRowReceiver& receive) {
    owner_.refresh();
    if (!filter_ && owner_.isInCommandOrder()) owner_.scan(nullptr, columns, receive);
    else owner_.scan(&keys(), columns, receive);
}

bool KeyList::matchesAt(const Criterion& criterion, std::size_t position) {
    const Page& found = page(position, columnsOf(criterion));
    if (!found.exists(position)) return false;
    if (owner_.columns()[criterion.column].isKey) return compares(criterion, static_cast<double>(key(position)));
    return compares(criterion, found.value(position, criterion.column));
}

std::optional<std::size_t> KeyList::scan(const Criterion& criterion, std::size_t start, std::size_t count,
                                         SearchDirection direction) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t position = direction == adSearchForward ? start + i : start - i;
        if (matchesAt(criterion, position)) return position;
    }
    return std::nullopt;
}

std::optional<std::size_t> KeyList::firstOf(const RowKeys& hits, std::size_t start, SearchDirection direction) {
    const bool forward = direction == adSearchForward;
    std::vector<Key> sought;
    sought.reserve(hits.size());
    for (std::size_t i = 0; i < hits.size(); ++i) sought.push_back(hits[i]);
    if (!hits.ascending()) std::sort(sought.begin(), sought.end());
    const RowKeys& all = keys();
    const std::size_t count = forward ? all.size() - start : start + 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t position = forward ? start + i : start - i;
        if (std::binary_search(sought.begin(), sought.end(), all[position])) return position;
    }
    return std::nullopt;
}

std::optional<std::size_t> KeyList::search(const Criterion& criterion, std::size_t start, SearchDirection direction) {
    const bool forward = direction == adSearchForward;
    if (const auto key = soughtKey(criterion, owner_.columns())) {
        const auto found = find(*key);
        const bool ahead = found && (forward ? *found >= start : *found <= start);
        return ahead && exists(*found) ? found : std::nullopt;
    }
    const std::size_t count = forward ? size() - start : start + 1;
    const std::size_t here = std::min(count, scanBeforeAsking);
    if (const auto found = scan(criterion, start, here, direction)) return found;
    if (here == count) return std::nullopt;
    const RowKeys hits = owner_.readKeys(&criterion);
    if (hits.empty()) return std::nullopt;
    return firstOf(hits, forward ? start + here : start - here, direction);
}

void KeyList::added(Key key) {
    if (!keys_) {
        addedBefore_.push_back(key);
        return;
    }
    pages_.forget(keys_->size());
    if (keys_->size() % PageCache::rowsPerPage != 0) pages_.forget(keys_->size() - 1);
    keys_->append(key);
}

void KeyList::changed(Key key) {
    if (!keys_) return;
    if (const auto position = keys_->find(key, hint_)) pages_.forget(*position);
}

void KeyList::erased(Key key) {
    std::erase(addedBefore_, key);
    const auto position = keys_ ? keys_->find(key, hint_) : std::nullopt;
    if (position) {
        keys_->erase(*position);
        pages_.erased(*position);
        hint_ = *position;
    }
    for (Cursor* cursor : cursors_) {
        const bool placed = cursor->place == Cursor::Place::row;
        if (placed && cursor->key == key) cursor->deleted = true;
        else if (placed && position && cursor->position > *position) --cursor->position;
    }
}

void KeyList::erased(const KeyMarks& keys) {
    std::erase_if(addedBefore_, [&](Key key) { return keys.contains(key); });
    pages_.clear();
    if (!keys_) return;
    for (Cursor* cursor : cursors_) {
        if (cursor->place != Cursor::Place::row) continue;
        std::size_t before = 0;
        for (std::size_t i = 0; i < cursor->position; ++i) before += keys.contains((*keys_)[i]) ? 1U : 0U;
        cursor->position -= before;
        cursor->deleted = cursor->deleted || keys.contains(cursor->key);
    }
    keys_->erase(keys);
}

void KeyList::dropKeys() {
    keys_.reset();
    readAt_.reset();
    addedBefore_.clear();
    pages_.clear();
    for (Cursor* cursor : cursors_) {
        if (cursor->place == Cursor::Place::row) cursor->place = Cursor::Place::key;
    }
}

}  // namespace hx::ado
