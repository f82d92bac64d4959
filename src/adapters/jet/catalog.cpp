// SPDX-License-Identifier: MIT
#include "adapters/jet/catalog.h"

#include <optional>

#include "adapters/jet/table.h"
#include "automation/text.h"

namespace hx::jet {

namespace {

constexpr std::int64_t isTable = 1, isLinkedTable = 4, isQuery = 5, isLinkedJetTable = 6;
constexpr std::uint32_t systemFlags = 0x80000002, pageMask = 0x00FFFFFF;

std::optional<Catalog::Kind> kindOf(std::int64_t type, std::uint32_t flags) {
    if (type == isTable) return (flags & systemFlags) != 0 ? Catalog::Kind::systemTable : Catalog::Kind::table;
    if (type == isQuery) return Catalog::Kind::query;
    if (type == isLinkedTable || type == isLinkedJetTable) return Catalog::Kind::linked;
    return std::nullopt;
}

class CatalogRow {
  public:
    CatalogRow(const Table& table, const Table::Found& found) : table_(table), found_(found) {}
    ado::StoredValue value(std::string_view column) {
        const auto number = table_.definition().column(column);
        return number ? table_.value(found_.row, *number, room_) : ado::StoredValue();
    }
    std::string text(std::string_view column) { return std::string(value(column).text); }

  private:
    const Table& table_;
    const Table::Found& found_;
    std::string room_;
};

}  // namespace

const Catalog::Entry* Catalog::find(std::string_view name) const {
    for (const Entry& entry : entries) {
        if (automation::equalIgnoreCase(entry.name, name)) return &entry;
    }
    return nullptr;
}

Catalog Catalog::read(Table& objects) {
    Catalog catalog;
    Table::Scan scan(objects);
    for (Table::Found found; scan.next(found);) {
        CatalogRow row(objects, found);
        const auto flags = static_cast<std::uint32_t>(row.value("Flags").integer);
        const auto kind = kindOf(row.value("Type").integer, flags);
        if (!kind) continue;
        Entry entry{row.text("Name"), *kind, static_cast<std::uint32_t>(row.value("Id").integer) & pageMask, {}, {}};
        if (*kind == Kind::linked) entry.where = row.text("Database");
        if (*kind == Kind::table) {
            const std::string properties = row.text("LvProp");
            entry.properties.assign(properties.begin(), properties.end());
        }
        catalog.entries.push_back(std::move(entry));
    }
    return catalog;
}

}  // namespace hx::jet
