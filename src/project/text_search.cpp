// SPDX-License-Identifier: MIT
#include "project/text_search.h"

#include <algorithm>
#include <array>

#include "project/schema.h"

namespace hx::project {

namespace {

std::uint8_t firstColumnOf(Table table) {
    const auto found = std::ranges::find(searchedColumns, table, &SearchedColumn::table);
    return static_cast<std::uint8_t>(found - searchedColumns.begin());
}

bool isText(const ado::StoredValue& value) { return value.kind == ado::StoredValue::Kind::text; }

}  // namespace

TextSearch::TextSearch(Reader& reader, TextPattern& pattern, SearchScope scope) : recipes_(reader.recipes()) {
    if (scope.recipes) searchRows(reader, pattern, Table::recipes);
    if (scope.members) searchMembers(reader, pattern);
    if (!std::ranges::is_sorted(hits_, {}, &TextHit::recipe)) std::ranges::stable_sort(hits_, {}, &TextHit::recipe);
    if (scope.variables) searchRows(reader, pattern, Table::variables);
}

void TextSearch::add(TextHit hit, std::string_view text) {
    hit.text = static_cast<std::uint32_t>(texts_.size());
    texts_.append(text);
    hits_.push_back(hit);
}

void TextSearch::searchRows(Reader& reader, TextPattern& pattern, Table table) {
    const std::uint8_t first = firstColumnOf(table);
    std::vector<std::string_view> columns{schema::recipe::id};
    for (const SearchedColumn& column : searchedColumns) {
        if (column.table == table) columns.push_back(column.name);
    }
    reader.read(nameOf(table), columns, [&](Row row) {
        const std::int64_t recipe = table == Table::recipes ? row[0].integer : 0;
        for (std::size_t i = 1; i < row.size(); ++i) {
            const auto column = static_cast<std::uint8_t>(first + i - 1);
            if (isText(row[i]) && pattern.isIn(row[i].text)) add({recipe, row[0].integer, 0, column}, row[i].text);
        }
    });
}

void TextSearch::searchMembers(Reader& reader, TextPattern& pattern) {
    using namespace schema::member;
    const std::uint8_t column = firstColumnOf(Table::members);
    reader.read(schema::memberTable, std::array{id, parentId, childId, varRecipe}, [&](Row row) {
        if (!isText(row[3]) || !pattern.isIn(row[3].text)) return;
        add({row[1].integer, row[0].integer, 0, column, row[2].integer != 0}, row[3].text);
    });
}

}  // namespace hx::project
