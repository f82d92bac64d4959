#include "cli/project_reader.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "adapters/sqlite/provider.h"

namespace hx::cli {

using automation::Variant;
using sqlite::ResetGuard;
using sqlite::Statement;

namespace {

const std::string& required(const std::string& path) {
    requireProject(path);
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

ProjectReader::ProjectReader(const std::string& path) : database_(required(path)) {
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

void requireProject(const std::string& path) {
    (void)sqlite::Provider().connect("Data Source=\"" + path + "\";Mode=Read;");
}

std::string visible(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    bool begun = false;  // a control character of two bytes, U+0080 to U+009F
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool ends = std::exchange(begun, false);
        begun = byte == 0xC2 && i + 1 < text.size() && (text[i + 1] & 0xE0) == 0x80;
        if (byte >= 0x20 && byte != 0x7F && !begun && !ends) result += text[i];
        else result.append("\\x").append(1, digits[byte >> 4]).append(1, digits[byte & 15]);
    }
    return result;
}

std::string inQuotes(std::string_view text) { return '"' + visible(text) + '"'; }

}  // namespace hx::cli
