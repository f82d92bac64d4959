// SPDX-License-Identifier: MIT
#include "cli/list.h"

#include <array>
#include <iomanip>
#include <unordered_map>

#include "adapters/sqlite/provider.h"
#include "cli/json_output.h"
#include "project/schema.h"

namespace hx::cli {

namespace {

struct Entry {
    project::RecipeEntry recipe;
    bool enabled = false;
    std::int64_t variables = 0;
    std::int64_t subRecipes = 0;
};

std::vector<Entry> readEntries(project::Reader& reader) {
    using namespace project::schema;
    std::vector<Entry> entries;
    std::unordered_map<std::int64_t, std::size_t> numbers;
    reader.read(recipeTable, std::array{recipe::id, recipe::name, recipe::enabled}, [&](const auto& row) {
        numbers.emplace(row[0].integer, entries.size());
        entries.push_back({{row[0].integer, std::string(row[1].text)}, row[2].isTrue()});
    });
    reader.read(memberTable, std::array{member::parentId, member::childId}, [&](const auto& row) {
        const auto found = numbers.find(row[0].integer);
        if (found == numbers.end()) return;
        Entry& entry = entries[found->second];
        ++(row[1].integer == 0 ? entry.variables : entry.subRecipes);
    });
    return entries;
}

void printLine(const Entry& entry, const Output& output) {
    output.results << std::setw(10) << entry.recipe.id << std::setw(9) << (entry.enabled ? "yes" : "no")
                   << std::setw(11) << entry.variables << std::setw(13) << entry.subRecipes << "  "
                   << inQuotes(entry.recipe.name) << "\n";
}

void printObject(const Entry& entry, bool first, const Output& output) {
    Json object = recipeObject(entry.recipe);
    object["enabled"] = entry.enabled;
    object["variables"] = entry.variables;
    object["subRecipes"] = entry.subRecipes;
    output.results << (first ? "\n" : ",\n") << jsonLine(object);
}

}  // namespace

void list(const std::string& path, bool json, const Output& output) {
    sqlite::Provider provider;
    project::Reader reader(provider, path);
    const auto entries = readEntries(reader);
    output.results << (json ? "{\"recipes\": [" : "        ID   Active  Variables  Sub-recipes  Name\n");
    for (const Entry& entry : entries) {
        if (json) printObject(entry, &entry == entries.data(), output);
        else printLine(entry, output);
    }
    if (json) output.results << "\n]}\n";
}

}  // namespace hx::cli
