// SPDX-License-Identifier: MIT

// What a row is made of before it is stored.
#include <algorithm>
#include <limits>

#include "adapters/jet/column_value.h"
#include "adapters/jet/database.h"
#include "adapters/jet/failure.h"
#include "adapters/jet/index_key.h"
#include "adapters/jet/long_value.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/table.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

std::string namesOf(const TableDefinition& table, const Index& index) {
    std::string names;
    for (const IndexColumn& part : index.columns) {
        names += (names.empty() ? "" : ", ") + table.name + "." + table.columns[part.column].name;
    }
    return names;
}

}  // namespace

void Table::fill(Draft& draft, Values values) const {
    const std::size_t count = definition_.columns.size();
    draft.parts.assign(count, std::nullopt);
    draft.given.assign(count, false);
    for (std::size_t i = 0; i < count; ++i) {
        if (i >= values.size() || !values[i]) continue;
        const std::size_t at = draft.bytes.size();
        draft.given[i] = true;
        if (store(draft.bytes, column(i), *values[i])) draft.parts[i] = {at, draft.bytes.size() - at};
    }
}

// What is not given gets the table's value, and a number that the table has not given yet.
void Table::number(Draft& draft) {
    for (std::size_t i = 0; i < definition_.columns.size(); ++i) {
        const Column& column = this->column(i);
        if (!column.isCounter || column.type != ColumnType::longInteger) {
            if (draft.given[i]) continue;
            const std::size_t at = draft.bytes.size();
            if (store(draft.bytes, column, ado::storedValue(standards_[i]))) {
                draft.parts[i] = {at, draft.bytes.size() - at};
            }
            continue;
        }
        const std::int32_t last = lastCounter();
        if (draft.parts[i]) {
            const auto given = static_cast<std::int32_t>(get32(draft.bytes.data() + draft.parts[i]->at));
            draft.counter = std::max(last, given);
            continue;
        }
        if (last == std::numeric_limits<std::int32_t>::max()) {
            throw automation::Error(ado::dbErrUnspecified, sentence::noMoreNumbers, {definition_.name});
        }
        draft.parts[i] = {draft.bytes.size(), sizeof last};
        append32(draft.bytes, static_cast<std::uint32_t>(last + 1));
        draft.counter = last + 1;
    }
}

// A row as it stands in the file.
Draft Table::draftOf(const Row& row) const {
    Draft draft;
    draft.row.assign(row.bytes().begin(), row.bytes().end());
    const Row kept(draft.row, definition_, definition_.page);
    for (const Column& column : definition_.columns) draft.columns.push_back(kept.column(column));
    draft.values = draft.columns;
    std::vector<Draft::Part> contents(draft.values.size());
    for (const Index& index : definition_.indexes) {
        for (const IndexColumn& part : index.columns) {
            const StoredColumn& stored = draft.columns[part.column];
            if (!column(part.column).isLong() || !stored) continue;
            contents[part.column].at = draft.contents.size();
            LongValues::read(database_->pages(), draft.contents, *stored, longestValue);
            contents[part.column].size = draft.contents.size() - contents[part.column].at;
            draft.values[part.column] = Bytes();
        }
    }
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (column(i).isLong() && draft.values[i]) {
            draft.values[i] = Bytes(draft.contents).subspan(contents[i].at, contents[i].size);
        }
    }
    return draft;
}

void Table::requireValues(const Draft& draft) const {
    const auto need = [&](std::size_t number) {
        if (draft.values[number]) return;
        throw Refused(ado::dbErrIntegrity,
                      "NOT NULL constraint failed: " + definition_.name + "." + column(number).name);
    };
    for (std::size_t i = 0; i < definition_.columns.size(); ++i) {
        if (column(i).isRequired) need(i);
    }
    for (const Index& index : definition_.indexes) {
        if (!index.isRequired) continue;
        for (const IndexColumn& part : index.columns) need(part.column);
    }
}

void Table::makeKey(Buffer& key, const Index& index, const Draft& draft) const {
    key.clear();
    for (const IndexColumn& part : index.columns) {
        appendKeyPart(key, column(part.column), part.descending, draft.values[part.column]);
    }
}

bool Table::isIndexed(const Index& index, const Draft& draft) const {
    if (!index.ignoresNulls) return true;
    return std::ranges::any_of(index.columns,
                               [&](const IndexColumn& part) { return draft.values[part.column].has_value(); });
}

// Rows without any value of the index do not count as the same.
void Table::requireUnique(const Index& index, Bytes key, const Draft& draft, std::optional<Place> butOf) {
    const StoredColumn& last = draft.values[index.columns.back().column];
    if (index.isUniqueButEmpty() ? !last || last->empty() : !index.isUnique) return;
    const auto hasValue = [&](const IndexColumn& part) { return draft.values[part.column].has_value(); };
    if (std::ranges::none_of(index.columns, hasValue)) return;
    if (!trees_[index.number].contains(key, butOf)) return;
    throw Refused(ado::dbErrDuplicate, "UNIQUE constraint failed: " + namesOf(definition_, index));
}

void Table::addEntry(const Index& index, Bytes key, Place place) {
    if (!trees_[index.number].insert(key, place)) return;
    const PageRef page = database_->pages().write(definition_.page);
    Byte* const entries = page.data() + TableDefinition::entriesAt(index.number);
    put32(entries, get32(entries) + 1);
}

}  // namespace hx::jet
