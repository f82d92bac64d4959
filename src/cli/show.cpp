// SPDX-License-Identifier: MIT
#include "cli/show.h"

#include <array>

#include "adapters/sqlite/provider.h"
#include "automation/error.h"
#include "cli/json_output.h"
#include "project/schema.h"

namespace hx::cli {

using project::Branch;
using project::BranchMark;
using project::RecipeEntry;
using project::Use;

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
    Shown(project::Reader& reader, const std::string& nameOrId)
        : reader_(reader),
          recipes_(reader.recipes()),
          inclusions_(reader.inclusions()),
          graph_(project::graphOf(recipes_, inclusions_)),
          number_(requireRecipe(nameOrId)) {}

    [[nodiscard]] const RecipeEntry& recipe() const { return recipes_[number_]; }

    [[nodiscard]] Json properties() {
        Json result = {{project::schema::recipe::id, recipe().id}};
        for (const exchange::Cell& cell : exchange::readRecipe(reader_, recipe().id).cells) {
            result[cell.column] = exchange::jsonOf(cell.value);
        }
        return result;
    }

    [[nodiscard]] Json variables() {
        Json result = Json::array();
        using namespace project::schema;
        reader_.read(
            memberTable, std::array{member::id, member::varRecipe},
            [&](const auto& row) {
                result.push_back({{"member", row[0].integer}, {"variable", std::string(row[1].text)}});
            },
            "ParentID = " + std::to_string(recipe().id) + " AND ChildID = 0");
        return result;
    }

    // Flat, each with its depth: a chain of recipes may be longer than programs like to nest.
    [[nodiscard]] Json tree() const {
        Json result = Json::array();
        for (const Branch& branch : branches()) {
            const project::Inclusion& inclusion = inclusions_[branch.inclusion];
            Json line = {{"depth", branch.depth}, {"member", inclusion.member}, {"id", inclusion.child}};
            line["name"] = branch.recipe ? Json(recipes_[*branch.recipe].name) : Json(nullptr);
            line["fileNameVariable"] = inclusion.fileVariable;
            line["mark"] = nameOf(branch.mark);
            result.push_back(std::move(line));
        }
        return result;
    }

    // In the order of `tree`.
    [[nodiscard]] std::vector<std::string> treeLines() const {
        std::vector<std::string> lines;
        for (const Branch& branch : branches()) {
            const project::Inclusion& inclusion = inclusions_[branch.inclusion];
            std::string line(2 * branch.depth, ' ');
            line += branch.recipe ? inQuotes(recipes_[*branch.recipe].name) : "ID " + std::to_string(inclusion.child);
            if (!inclusion.fileVariable.empty()) line += ", file name " + inQuotes(inclusion.fileVariable);
            lines.push_back(line.append(explanationOf(branch.mark)));
        }
        return lines;
    }

    [[nodiscard]] std::vector<Use> uses() const { return graph_.uses({number_}).list; }
    [[nodiscard]] const RecipeEntry& recipe(std::size_t number) const { return recipes_[number]; }
    [[nodiscard]] bool isDirect(const Use& use) const { return use.through == number_; }

  private:
    static constexpr std::size_t deepest = 100;

    [[nodiscard]] std::vector<Branch> branches() const { return graph_.tree(number_, {.depth = deepest}).branches; }

    [[nodiscard]] std::size_t requireRecipe(const std::string& nameOrId) const {
        if (const auto found = project::findRecipe(recipes_, nameOrId)) return *found;
        throw automation::Error(automation::errFail,
                                "There is no recipe " + inQuotes(nameOrId) + " in " + reader_.path());
    }

    project::Reader& reader_;
    std::vector<RecipeEntry> recipes_;
    std::vector<project::Inclusion> inclusions_;
    project::InclusionGraph graph_;
    std::size_t number_;
};

void printObject(Shown& shown, const Output& output) {
    Json object = recipeObject(shown.recipe());
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

void printText(Shown& shown, const Output& output) {
    output.results << "Recipe " << inQuotes(shown.recipe().name) << "\n";
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
    sqlite::Provider provider;
    project::Reader reader(provider, path);
    Shown shown(reader, recipe);
    if (json) printObject(shown, output);
    else printText(shown, output);
}

}  // namespace hx::cli
