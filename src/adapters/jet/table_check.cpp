// SPDX-License-Identifier: MIT
#include <string>

#include "adapters/jet/database.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/table.h"

namespace hx::jet {

void Table::check(const IndexTree::Report& report) {
    std::vector<std::uint64_t> expected(definition_.indexes.size()), wrong(definition_.indexes.size());
    std::uint32_t rows = 0;
    Scan scan(*this);
    std::string room;
    for (Found found; scan.next(found); ++rows) {
        for (std::size_t i = 0; i < definition_.columns.size(); ++i) (void)value(found.row, i, room);
        if (unknownIndex() != nullptr) continue;
        const Draft draft = draftOf(found.row);
        Buffer key;
        for (const Index& index : definition_.indexes) {
            if (!isIndexed(index, draft)) continue;
            ++expected[index.number];
            makeKey(key, index, draft);
            if (!trees_[index.number].has(key, found.place)) ++wrong[index.number];
        }
    }
    if (rows != rowCount()) report(definition_.page, sentence::wrongCount);
    for (const Index& index : definition_.indexes) {
        const std::uint64_t entries = trees_[index.number].check(report);
        if (unknownIndex() != nullptr) continue;
        if (entries != expected[index.number] || wrong[index.number] > 0) report(index.root, sentence::wrongEntries);
    }
    const UsageMap own(database_->pages(), definition_.ownPages);
    const std::uint32_t end = database_->pages().count();
    for (std::uint32_t page = own.next(1, end); page < end; page = own.next(page + 1, end)) {
        if (database_->space().isFree(page)) report(page, sentence::freeAndUsed);
    }
}

}  // namespace hx::jet
