// SPDX-License-Identifier: MIT
#include "project/reader.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "automation/text.h"
#include "project/id_order.h"
#include "project/schema.h"

namespace hx::project {

namespace {

std::optional<std::int64_t> wholeId(const std::string& text) {
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return id;
}

std::size_t columnOf(const std::vector<ado::Column>& columns, std::string_view name, std::string_view table) {
    const auto found = std::ranges::find_if(
        columns, [&](const ado::Column& column) { return automation::equalIgnoreCase(column.name, name); });
    if (found != columns.end()) return static_cast<std::size_t>(found - columns.begin());
    throw automation::Error(ado::dbErrBadCommand,
                            "The table \"" + std::string(table) + "\" has no column \"" + std::string(name) + "\".");
}

}  // namespace

std::optional<std::size_t> numberOf(const std::vector<RecipeEntry>& recipes, std::int64_t id) {
    return positionOf(recipes, id);
}

std::optional<std::size_t> findRecipe(const std::vector<RecipeEntry>& recipes, const std::string& nameOrId) {
    const auto found = std::ranges::find_if(
        recipes, [&](const RecipeEntry& recipe) { return automation::equalIgnoreCase(recipe.name, nameOrId); });
    if (found != recipes.end()) return static_cast<std::size_t>(found - recipes.begin());
    const auto id = wholeId(nameOrId);
    return id ? numberOf(recipes, *id) : std::nullopt;
}

InclusionGraph graphOf(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions) {
    std::vector<InclusionGraph::Inclusion> numbered;
    numbered.reserve(inclusions.size());
    for (const Inclusion& inclusion : inclusions) {
        numbered.push_back({numberOf(recipes, inclusion.parent).value_or(InclusionGraph::noRecipe),
                            numberOf(recipes, inclusion.child).value_or(InclusionGraph::noRecipe)});
    }
    return {recipes.size(), std::move(numbered)};
}

Reader::Reader(ado::Provider& provider, std::string path, Damage damage)
    : session_(provider.connect("Data Source=\"" + path + "\";Mode=Read;")), path_(std::move(path)) {
    if (damage == Damage::refuse) session_->requireUndamaged();
    session_->beginTransaction();
}

Reader::Reader(std::shared_ptr<ado::Session> session, std::string path)
    : session_(std::move(session)), path_(std::move(path)) {}

std::vector<ado::Column> Reader::columns(std::string_view table) {
    return session_->open(table, ado::adCmdTable)->columns();
}

void Reader::read(std::string_view table, std::span<const std::string_view> columns,
                  const ado::StoredRowReceiver& receive, const std::string& condition) {
    const std::string where = condition.empty() ? "" : " WHERE " + condition;
    scan(*session_->open("SELECT * FROM " + std::string(table) + where + " ORDER BY ID", ado::adCmdText), table,
         columns, receive);
}

void Reader::readKeyed(std::string_view table, std::span<const std::string_view> columns,
                       const std::function<void(ado::Key key, Row row)>& receive) {
    const auto rows = session_->open(table, ado::adCmdTable);
    const ado::RowKeys keys = rows->keys(nullptr);
    std::size_t at = 0;
    scan(*rows, table, columns, [&](Row row) {
        if (at < keys.size()) receive(keys[at++], row);
    });
}

void Reader::scan(ado::Rowset& rows, std::string_view table, std::span<const std::string_view> columns,
                  const ado::StoredRowReceiver& receive) {
    std::vector<std::size_t> numbers;
    for (const std::string_view column : columns) numbers.push_back(columnOf(rows.columns(), column, table));
    if (!progress_) return rows.scan(numbers, receive);
    rows.scan(numbers, [&](Row row) {
        constexpr std::int64_t between = 1024;
        if (++rows_ % between == 0) progress_(rows_, 0);
        receive(row);
    });
}

std::vector<RecipeEntry> Reader::recipes() {
    std::vector<RecipeEntry> recipes;
    read(schema::recipeTable, std::array{schema::recipe::id, schema::recipe::name}, [&](Row row) {
        recipes.push_back({row[0].integer, std::string(row[1].text)});
    });
    return recipes;
}

std::vector<Inclusion> Reader::inclusions() {
    std::vector<Inclusion> inclusions;
    using namespace schema::member;
    // Two ranges, as an index answers each of them at once.
    read(
        schema::memberTable, std::array{id, parentId, childId, varRecipe},
        [&](Row row) {
            inclusions.push_back({row[0].integer, row[1].integer, row[2].integer, std::string(row[3].text)});
        },
        "ChildID > 0 OR ChildID < 0");
    return inclusions;
}

}  // namespace hx::project
