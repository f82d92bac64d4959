#include "cli/project_reader.h"

#include <algorithm>
#include <charconv>

#include "adapters/sqlite/provider.h"

namespace hx::cli {

using automation::Variant;
using sqlite::ResetGuard;
using sqlite::Statement;

namespace {

void connect(const std::string& path, const std::string& mode) {
    (void)sqlite::Provider().connect("Data Source=\"" + path + "\";Mode=" + mode + ";");
}

const std::string& readable(const std::string& path) {
    connect(path, "Read");
    return path;
}

std::optional<std::int64_t> wholeId(const std::string& text) {
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return id;
}

std::optional<RecipeEntry> firstRecipe(Statement& statement) {
    if (!statement.step()) return std::nullopt;
    return RecipeEntry{statement.key(0), statement.text(1)};
}

}  // namespace

// The IDs ascend, so the first and the last one tell how far off this one can be: most projects have few gaps.
std::optional<std::size_t> numberOf(const std::vector<RecipeEntry>& recipes, std::int64_t id) {
    if (recipes.empty() || id < recipes.front().id || id > recipes.back().id) return std::nullopt;
    const auto distance = [](std::int64_t from, std::int64_t to) {
        return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from);
    };
    const std::uint64_t last = recipes.size() - 1;
    const std::uint64_t fromFront = std::min(last, distance(recipes.front().id, id));
    const std::uint64_t fromBack = std::min(last, distance(id, recipes.back().id));
    const auto first = recipes.begin() + static_cast<std::ptrdiff_t>(last - fromBack);
    const auto end = recipes.begin() + static_cast<std::ptrdiff_t>(fromFront) + 1;
    const auto found = std::ranges::lower_bound(first, end, id, {}, &RecipeEntry::id);
    if (found == end || found->id != id) return std::nullopt;
    return static_cast<std::size_t>(found - recipes.begin());
}

ProjectReader::ProjectReader(const std::string& path, Damage damage) : database_(readable(path)) {
    if (damage == Damage::refuse) sqlite::requireUndamaged(database_);
    // What is read stays the same to the end, whatever other programs write meanwhile.
    database_.execute("PRAGMA query_only=ON; BEGIN;");
}

std::vector<RecipeEntry> ProjectReader::recipes() {
    std::vector<RecipeEntry> recipes;
    Statement select(database_, "SELECT ID, Name FROM TrcpRecipe ORDER BY ID");
    while (select.step()) recipes.push_back({select.key(0), select.text(1)});
    return recipes;
}

std::vector<Inclusion> ProjectReader::inclusions() {
    std::vector<Inclusion> inclusions;
    // Two ranges, as an index answers each of them at once.
    Statement select(database_,
                     "SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember WHERE ChildID > 0 OR ChildID < 0 "
                     "ORDER BY ID");
    while (select.step()) inclusions.push_back({select.key(0), select.key(1), select.key(2), select.text(3)});
    return inclusions;
}

std::optional<RecipeEntry> ProjectReader::findRecipe(const std::string& nameOrId) {
    Statement byName(database_, "SELECT ID, Name FROM TrcpRecipe WHERE Name = ?1 COLLATE HXTEXT");
    byName.bind(1, Variant(nameOrId));
    if (auto found = firstRecipe(byName)) return found;
    const auto id = wholeId(nameOrId);
    if (!id) return std::nullopt;
    Statement byId(database_, "SELECT ID, Name FROM TrcpRecipe WHERE ID = ?1");
    byId.bind(1, *id);
    return firstRecipe(byId);
}

void requireProject(const std::string& path) { connect(path, "ReadWrite"); }

}  // namespace hx::cli
