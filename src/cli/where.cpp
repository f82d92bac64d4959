#include "cli/where.h"

#include <algorithm>
#include <set>

#include "automation/error.h"
#include "automation/text.h"
#include "cli/json_output.h"
#include "cli/recipe_graph.h"

namespace hx::cli {

using automation::Variant;
using sqlite::Statement;

namespace {

struct Reference {
    enum class Kind { column, variable, fileName, subRecipe, indirect };
    Kind kind;
    std::int64_t recipe;      // that refers; may be none that exists
    std::int64_t member = 0;  // of it, but for a column or an indirect one
    std::string column;
    std::int64_t other = 0;  // the sub-recipe that is meant, or through which
};

std::string_view nameOf(Reference::Kind kind) {
    switch (kind) {
        case Reference::Kind::column: return "column";
        case Reference::Kind::variable: return "variable";
        case Reference::Kind::fileName: return "file-name";
        case Reference::Kind::subRecipe: return "sub-recipe";
        case Reference::Kind::indirect: return "indirect";
    }
    return "";
}

class Search {
  public:
    Search(ProjectReader& project, const std::string& name)
        : project_(project),
          name_(name),
          recipes_(project.recipes()),
          inclusions_(project.inclusions()),
          graph_(recipes_, inclusions_),
          recipe_(project.findRecipe(name)) {}

    void run() {
        findColumns();
        findMembers();
        if (recipe_) findInclusions();
        if (references_.empty() && !recipe_ && !isListed()) {
            throw automation::Error(automation::errFail, "There is neither a variable nor a recipe " + inQuotes(name_) +
                                                             " in " + project_.path());
        }
        findIndirect();
    }

    void print(const Output& output) const {
        for (const Reference& reference : references_) output.results << lineOf(reference) << "\n";
        if (references_.empty()) output.results << "Nothing refers to " << inQuotes(name_) << ".\n";
    }

    void printObject(const Output& output) const {
        output.results << "{\"name\": " << jsonLine(Json(name_))
                       << ", \"recipe\": " << jsonLine(recipe_ ? recipeObject(*recipe_) : Json(nullptr))
                       << ", \"references\": [";
        bool first = true;
        for (const Reference& reference : references_) {
            output.results << (first ? "\n" : ",\n") << jsonLine(objectOf(reference));
            first = false;
        }
        output.results << "\n]}\n";
    }

  private:
    void findColumns() {
        std::string columns;
        std::string condition;
        for (const std::string_view column : variableColumns) {
            columns.append(", ").append(column);
            condition.append(condition.empty() ? "" : " OR ").append(column).append(" = ?1 COLLATE HXTEXT");
        }
        Statement select(project_.database(), "SELECT ID" + columns + " FROM TrcpRecipe WHERE " + condition);
        select.bind(1, Variant(name_));
        while (select.step()) {
            for (int i = 1; i < select.columnCount(); ++i) {
                if (!automation::equalIgnoreCase(select.text(i), name_)) continue;
                references_.push_back({Reference::Kind::column, select.key(0), 0, select.columnName(i)});
            }
        }
    }

    void findMembers() {
        Statement select(project_.database(),
                         "SELECT ID, ParentID, ChildID FROM TrcpRecipeMember WHERE VarRecipe = ?1 COLLATE HXTEXT "
                         "ORDER BY ParentID, ID");
        select.bind(1, Variant(name_));
        while (select.step()) {
            const auto kind = select.key(2) == 0 ? Reference::Kind::variable : Reference::Kind::fileName;
            references_.push_back({kind, select.key(1), select.key(0), {}, select.key(2)});
        }
    }

    void findInclusions() {
        for (const Inclusion& inclusion : inclusions_) {
            if (inclusion.child != recipe_->id) continue;
            references_.push_back({Reference::Kind::subRecipe, inclusion.parent, inclusion.member, {}, recipe_->id});
        }
    }

    [[nodiscard]] bool isListed() {
        Statement select(project_.database(), "SELECT 1 FROM ThxVariable WHERE Name = ?1 COLLATE HXTEXT");
        select.bind(1, Variant(name_));
        return select.step();
    }

    // The recipes above those that refer directly; the latter are not named again.
    void findIndirect() {
        std::set<std::size_t> direct;
        for (const Reference& reference : references_) {
            if (const auto number = graph_.numberOf(reference.recipe)) direct.insert(*number);
        }
        for (const recipe::Use& use : graph_.uses({direct.begin(), direct.end()})) {
            if (direct.contains(use.recipe)) continue;
            references_.push_back(
                {Reference::Kind::indirect, graph_.recipe(use.recipe).id, 0, {}, graph_.recipe(use.through).id});
        }
    }

    [[nodiscard]] std::string textOf(std::int64_t id) const {
        const auto number = graph_.numberOf(id);
        return number ? inQuotes(graph_.recipe(*number).name) : "with the ID " + std::to_string(id) + " (missing)";
    }

    [[nodiscard]] std::string lineOf(const Reference& reference) const {
        std::string place = "recipe " + textOf(reference.recipe);
        const std::string member = place + ", member " + std::to_string(reference.member);
        switch (reference.kind) {
            case Reference::Kind::column: return place + ": " + reference.column;
            case Reference::Kind::variable: return member + ": variable";
            case Reference::Kind::fileName: return member + ": file name of the sub-recipe " + textOf(reference.other);
            case Reference::Kind::subRecipe: return member + ": sub-recipe";
            case Reference::Kind::indirect: return place + ": through the sub-recipe " + textOf(reference.other);
        }
        return place;
    }

    [[nodiscard]] Json recipeOf(std::int64_t id) const {
        const auto number = graph_.numberOf(id);
        return number ? recipeObject(graph_.recipe(*number)) : Json{{"id", id}, {"name", nullptr}};
    }

    [[nodiscard]] Json objectOf(const Reference& reference) const {
        Json object = {{"kind", nameOf(reference.kind)}, {"recipe", recipeOf(reference.recipe)}};
        if (reference.kind == Reference::Kind::column) object["column"] = reference.column;
        if (reference.member != 0) object["member"] = reference.member;
        if (reference.kind == Reference::Kind::fileName) object["subRecipe"] = recipeOf(reference.other);
        if (reference.kind == Reference::Kind::indirect) object["through"] = recipeOf(reference.other);
        return object;
    }

    ProjectReader& project_;
    const std::string& name_;
    std::vector<RecipeEntry> recipes_;
    std::vector<Inclusion> inclusions_;
    RecipeGraph graph_;
    std::optional<RecipeEntry> recipe_;  // of that name or ID
    std::vector<Reference> references_;
};

}  // namespace

void where(const std::string& path, const std::string& name, bool json, const Output& output) {
    ProjectReader project(path);
    Search search(project, name);
    search.run();
    if (json) search.printObject(output);
    else search.print(output);
}

}  // namespace hx::cli
