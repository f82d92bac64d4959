// SPDX-License-Identifier: MIT
#include "adapters/jet/relations.h"

#include <algorithm>

#include "adapters/jet/column_value.h"
#include "adapters/jet/database.h"
#include "adapters/jet/failure.h"
#include "adapters/jet/index_key.h"
#include "adapters/jet/sentences.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

using automation::Error;

bool sameStored(const StoredColumn& a, const StoredColumn& b) {
    return a.has_value() == b.has_value() && (!a || std::ranges::equal(*a, *b));
}

bool changes(const Table& table, const Relation& relation, Relations::Values before, Relations::Values after) {
    return std::ranges::any_of(table.definition().indexes[relation.index].columns, [&](const IndexColumn& part) {
        return !sameStored(before[part.column], after[part.column]);
    });
}

bool hasValue(const Table& table, const Relation& relation, Relations::Values values) {
    return std::ranges::any_of(table.definition().indexes[relation.index].columns,
                               [&](const IndexColumn& part) { return values[part.column].has_value(); });
}

}  // namespace

Relations::Other Relations::otherOf(const Relation& relation) {
    Table& other = database_.tableAt(relation.otherTable);
    for (const auto& [number, index] : other.definition().indexNumbers) {
        if (number == relation.otherNumber) return {other, index};
    }
    throw Damaged(relation.otherTable, sentence::noDefinition);
}

// As the values of one table stand in the index of the other.
Buffer Relations::keyIn(const Other& other, const Table& table, const Relation& relation, Values values) const {
    const Index& index = table.definition().indexes[relation.index];
    const Index& otherIndex = other.table.definition().indexes[other.index];
    Buffer key;
    for (std::size_t i = 0; i < index.columns.size() && i < otherIndex.columns.size(); ++i) {
        const IndexColumn& part = otherIndex.columns[i];
        appendKeyPart(key, other.table.definition().columns[part.column], part.descending,
                      values[index.columns[i].column]);
    }
    return key;
}

void Relations::requireParents(Table& table, Values values, const std::vector<StoredColumn>* before) {
    for (const Relation& relation : table.definition().relations) {
        if (relation.isPrimary || !hasValue(table, relation, values)) continue;
        if (before != nullptr && !changes(table, relation, *before, values)) continue;
        const Other other = otherOf(relation);
        const Buffer key = keyIn(other, table, relation, values);
        const IndexTree::Cursor cursor(other.table.tree(other.index), key);
        if (!cursor.atEnd() && cursor.compareStart(key) == 0) continue;
        throw Error(ado::dbErrIntegrity, sentence::needsRow, {relation.name, other.table.definition().name});
    }
}

void Relations::requireNoChildren(Table& table, Values values, const std::vector<StoredColumn>* after) {
    for (const Relation& relation : table.definition().relations) {
        if (!relation.isPrimary || !hasValue(table, relation, values)) continue;
        if (after != nullptr && (relation.cascadesUpdates || !changes(table, relation, values, *after))) continue;
        const Other other = otherOf(relation);
        const Buffer key = keyIn(other, table, relation, values);
        if (after == nullptr && relation.cascadesDeletes) {
            removeChildren(other, key);
        } else if (after == nullptr && relation.cascadesNulls) {
            setChildren(other, key, table, relation, nullptr);
        } else {
            const IndexTree::Cursor cursor(other.table.tree(other.index), key);
            if (cursor.atEnd() || cursor.compareStart(key) != 0) continue;
            throw Error(ado::dbErrIntegrity, sentence::hasRows, {relation.name, other.table.definition().name});
        }
    }
}

void Relations::changeChildren(Table& table, Values before, Values after) {
    for (const Relation& relation : table.definition().relations) {
        if (!relation.isPrimary || !relation.cascadesUpdates || !hasValue(table, relation, before)) continue;
        if (!changes(table, relation, before, after)) continue;
        const Other other = otherOf(relation);
        setChildren(other, keyIn(other, table, relation, before), table, relation, &after);
    }
}

template <class Change>
void Relations::losing(Change&& change) {
    try {
        change();
    } catch (...) {
        database_.pages().lose();
        throw;
    }
}

void Relations::setChildren(const Other& other, Bytes key, const Table& table, const Relation& relation,
                            const Values* values) {
    const auto& columns = table.definition().indexes[relation.index].columns;
    const auto& otherColumns = other.table.definition().indexes[other.index].columns;
    std::vector<std::string> rooms(columns.size());
    std::vector<std::optional<ado::StoredValue>> changed(other.table.definition().columns.size());
    for (std::size_t i = 0; i < columns.size() && i < otherColumns.size(); ++i) {
        const std::size_t from = columns[i].column;
        changed[otherColumns[i].column] = values == nullptr
                                              ? ado::StoredValue()
                                              : valueOf(table.definition().columns[from], (*values)[from], rooms[i]);
    }
    for (;;) {
        const IndexTree::Cursor cursor(other.table.tree(other.index), key);
        if (cursor.atEnd() || cursor.compareStart(key) != 0) return;
        losing([&] { (void)other.table.update(cursor.place(), changed); });
    }
}

void Relations::removeChildren(const Other& other, Bytes key) {
    for (;;) {
        const IndexTree::Cursor cursor(other.table.tree(other.index), key);
        if (cursor.atEnd() || cursor.compareStart(key) != 0) return;
        losing([&] {
            require(other.table.remove(cursor.place()), other.table.definition().page, sentence::wrongEntries);
        });
    }
}

}  // namespace hx::jet
