// SPDX-License-Identifier: MIT
#include "adapters/jet/database.h"
#include "adapters/jet/table.h"

namespace hx::jet {

bool Table::Scan::next(Found& found) {
    Pages& pages = table_->database_->pages();
    const UsageMap own(pages, table_->definition_.ownPages);
    for (;; ++row_) {
        if (!page_ || row_ >= page_->rows()) {
            const std::uint32_t last = page_ ? page_->page().number() : 0;
            const std::uint32_t page = own.next(last + 1, pages.count());
            if (page >= pages.count()) return false;
            page_.emplace(table_->rows_.read(page));
            row_ = 0;
            if (page_->rows() == 0) continue;
        }
        if ((page_->flags(row_) & DataPage::hidden) != 0) continue;
        const Place place{page_->page().number(), static_cast<std::uint8_t>(row_)};
        if (table_->read(place, found)) return ++row_, true;
    }
}

void Table::Scan::renew(const Table& table) {
    table_ = &table;
    if (page_) page_.emplace(table.rows_.read(page_->page().number()));
}

Table::KeyScan::KeyScan(Table& table) : table_(&table) {
    if (table.keyIndex_) entries_.emplace(table.trees_[*table.keyIndex_], Bytes());
    else scan_.emplace(table);
}

bool Table::KeyScan::next(Found& found) {
    if (scan_) return scan_->next(found);
    while (!entries_->atEnd()) {
        const Place place = entries_->place();
        entries_->next();
        if (table_->read(place, found)) return true;
    }
    return false;
}

}  // namespace hx::jet
