#include "cli/show.h"

#include "automation/error.h"
#include "cli/json_output.h"
#include "cli/recipe_graph.h"

namespace hx::cli {

using recipe::Branch;
using recipe::BranchMark;
using recipe::Use;
using sqlite::Statement;

namespace {

std::string_view nameOf(BranchMark mark) {
    switch (mark) {
        case BranchMark::none: return "";
        case BranchMark::missing: return "missing";
        case BranchMark::cycle: return "cycle";
        case BranchMark::repeated: return "repeated";
        case BranchMark::deeper: return "deeper";
    }
    return "";
}

std::string_view explanationOf(BranchMark mark) {
    switch (mark) {
        case BranchMark::none: return "";
        case BranchMark::missing: return " - does not exist";
        case BranchMark::cycle: return " - contains itself";
        case BranchMark::repeated: return " - see above";
        case BranchMark::deeper: return " - goes on deeper";
    }
    return "";
}

/// Everything about one recipe.
class Shown {
  public:
    Shown(ProjectReader& project, const RecipeEntry& recipe)
        : project_(project),
          recipe_(recipe),
          recipes_(project.recipes()),
          inclusions_(project.inclusions()),
          graph_(recipes_, inclusions_),
          number_(graph_.numberOf(recipe.id).value()) {}

    [[nodiscard]] Json properties() {
        Json result = {{"ID", recipe_.id}};
        for (const Cell& cell : readRecipe(project_.database(), recipe_.id).cells) {
            result[cell.column] = jsonOf(cell.value);
        }
        return result;
    }

    [[nodiscard]] Json variables() {
        Json result = Json::array();
        Statement select(project_.database(),
                         "SELECT ID, VarRecipe FROM TrcpRecipeMember WHERE ParentID = ?1 AND ChildID = 0 ORDER BY ID");
        select.bind(1, recipe_.id);
        while (select.step()) result.push_back({{"member", select.key(0)}, {"variable", select.text(1)}});
        return result;
    }

    // Flat, each with its depth: a chain of recipes may be longer than programs like to nest.
    [[nodiscard]] Json tree() const {
        Json result = Json::array();
        for (const Branch& branch : graph_.tree(number_)) {
            const Inclusion& inclusion = inclusions_[branch.inclusion];
            Json line = {{"depth", branch.depth}, {"member", inclusion.member}, {"id", inclusion.child}};
            line["name"] = branch.recipe ? Json(graph_.recipe(*branch.recipe).name) : Json(nullptr);
            line["fileNameVariable"] = inclusion.fileVariable;
            line["mark"] = nameOf(branch.mark);
            result.push_back(std::move(line));
        }
        return result;
    }

    // In the order of `tree`.
    [[nodiscard]] std::vector<std::string> treeLines() const {
        std::vector<std::string> lines;
        for (const Branch& branch : graph_.tree(number_)) {
            const Inclusion& inclusion = inclusions_[branch.inclusion];
            std::string line(2 * branch.depth, ' ');
            line +=
                branch.recipe ? inQuotes(graph_.recipe(*branch.recipe).name) : "ID " + std::to_string(inclusion.child);
            if (!inclusion.fileVariable.empty()) line += ", file name " + inQuotes(inclusion.fileVariable);
            lines.push_back(line.append(explanationOf(branch.mark)));
        }
        return lines;
    }

    [[nodiscard]] std::vector<Use> uses() const { return graph_.uses({number_}); }
    [[nodiscard]] const RecipeEntry& recipe(std::size_t number) const { return graph_.recipe(number); }
    [[nodiscard]] bool isDirect(const Use& use) const { return use.through == number_; }

  private:
    ProjectReader& project_;
    RecipeEntry recipe_;
    std::vector<RecipeEntry> recipes_;
    std::vector<Inclusion> inclusions_;
    RecipeGraph graph_;
    std::size_t number_;
};

void printObject(Shown& shown, const RecipeEntry& recipe, const Output& output) {
    Json object = recipeObject(recipe);
    object["properties"] = shown.properties();
    object["variables"] = shown.variables();
    object["subRecipes"] = shown.tree();
    object["usedBy"] = Json::array();
    for (const Use& use : shown.uses()) {
        Json user = recipeObject(shown.recipe(use.recipe));
        user["through"] = shown.isDirect(use) ? Json(nullptr) : recipeObject(shown.recipe(use.through));
        object["usedBy"].push_back(std::move(user));
    }
    output.results << visibleJson(object.dump(2, ' ', false, Json::error_handler_t::replace)) << "\n";
}

void printTitle(const std::string& title, std::size_t count, const Output& output) {
    output.results << "\n" << title << ": " << count << "\n";
}

std::string textOf(const Json& value) {
    if (value.is_string()) return inQuotes(value.get<std::string>());
    if (value.is_null()) return "no value";
    if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
    return jsonLine(value);
}

void printText(Shown& shown, const RecipeEntry& recipe, const Output& output) {
    output.results << "Recipe " << inQuotes(recipe.name) << "\n";
    const Json properties = shown.properties();
    for (const auto& [column, value] : properties.items()) {
        output.results << "  " << visible(column) << ": " << textOf(value) << "\n";
    }
    const Json variables = shown.variables();
    printTitle("Variables", variables.size(), output);
    for (const Json& variable : variables) {
        output.results << "  " << inQuotes(variable["variable"].get<std::string>()) << "\n";
    }
    const auto lines = shown.treeLines();
    printTitle("Sub-recipes, with their own", lines.size(), output);
    for (const std::string& line : lines) output.results << "  " << line << "\n";
    const auto uses = shown.uses();
    printTitle("Used by", uses.size(), output);
    for (const Use& use : uses) {
        output.results << "  " << inQuotes(shown.recipe(use.recipe).name);
        if (!shown.isDirect(use)) output.results << ", through " << inQuotes(shown.recipe(use.through).name);
        output.results << "\n";
    }
}

}  // namespace

void show(const std::string& path, const std::string& recipe, bool json, const Output& output) {
    ProjectReader project(path);
    const auto found = project.findRecipe(recipe);
    if (!found) throw automation::Error(automation::errFail, "There is no recipe " + inQuotes(recipe) + " in " + path);
    Shown shown(project, *found);
    if (json) printObject(shown, *found, output);
    else printText(shown, *found, output);
}

}  // namespace hx::cli
