#include "cli/list.h"

#include <iomanip>

#include "cli/json_output.h"

namespace hx::cli {

using sqlite::Statement;

namespace {

struct Entry {
    RecipeEntry recipe;
    bool enabled = false;
    std::int64_t variables = 0;
    std::int64_t subRecipes = 0;
};

// Both counts come from an index alone.
constexpr const char* query =
    "SELECT r.ID, r.Name, r.Enabled, coalesce(m.Variables, 0), coalesce(m.SubRecipes, 0) FROM TrcpRecipe AS r "
    "LEFT JOIN (SELECT ParentID, sum(ChildID = 0) AS Variables, sum(ChildID <> 0) AS SubRecipes FROM TrcpRecipeMember "
    "GROUP BY ParentID) AS m ON m.ParentID = r.ID ORDER BY r.ID";

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
    ProjectReader project(path);
    Statement select(project.database(), query);
    output.results << (json ? "{\"recipes\": [" : "        ID   Active  Variables  Sub-recipes  Name\n");
    bool first = true;
    while (select.step()) {
        const bool enabled = select.value(2, ado::adBoolean) == automation::Variant(true);
        const Entry entry{{select.key(0), select.text(1)}, enabled, select.key(3), select.key(4)};
        if (json) printObject(entry, first, output);
        else printLine(entry, output);
        first = false;
    }
    if (json) output.results << "\n]}\n";
}

}  // namespace hx::cli
