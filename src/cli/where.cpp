// SPDX-License-Identifier: MIT
#include "cli/where.h"

#include <optional>

#include "adapters/sqlite/provider.h"
#include "automation/error.h"
#include "cli/json_output.h"
#include "cli/progress.h"
#include "project/where_used.h"

namespace hx::cli {

using project::Reference;

namespace {

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

/// Prints what was found.
class Printer {
  public:
    Printer(const project::WhereUsed& found, const std::string& name, const Output& output)
        : found_(found), name_(name), output_(output) {}

    void print() const {
        for (const Reference& reference : found_.references()) output_.results << lineOf(reference) << "\n";
        if (found_.references().empty()) output_.results << "Nothing refers to " << inQuotes(name_) << ".\n";
    }

    void printObject() const {
        const auto recipe = found_.recipe();
        output_.results << "{\"name\": " << jsonLine(Json(name_)) << ", \"recipe\": "
                        << jsonLine(recipe ? recipeObject(found_.recipes()[*recipe]) : Json(nullptr))
                        << ", \"references\": [";
        const char* separator = "\n";
        for (const Reference& reference : found_.references()) {
            output_.results << std::exchange(separator, ",\n") << jsonLine(objectOf(reference));
        }
        output_.results << "\n]}\n";
    }

  private:
    [[nodiscard]] const project::RecipeEntry* find(std::int64_t id) const {
        const auto number = project::numberOf(found_.recipes(), id);
        return number ? &found_.recipes()[*number] : nullptr;
    }

    [[nodiscard]] std::string textOf(std::int64_t id) const {
        const auto* recipe = find(id);
        return recipe != nullptr ? inQuotes(recipe->name) : "with the ID " + std::to_string(id) + " (missing)";
    }

    [[nodiscard]] std::string lineOf(const Reference& reference) const {
        std::string place = "recipe " + textOf(reference.recipe);
        const std::string member = place + ", member " + std::to_string(reference.member);
        switch (reference.kind) {
            case Reference::Kind::column: return place + ": " + std::string(reference.column);
            case Reference::Kind::variable: return member + ": variable";
            case Reference::Kind::fileName: return member + ": file name of the sub-recipe " + textOf(reference.other);
            case Reference::Kind::subRecipe: return member + ": sub-recipe";
            case Reference::Kind::indirect: return place + ": through the sub-recipe " + textOf(reference.other);
        }
        return place;
    }

    [[nodiscard]] Json recipeOf(std::int64_t id) const {
        const auto* recipe = find(id);
        return recipe != nullptr ? recipeObject(*recipe) : Json{{"id", id}, {"name", nullptr}};
    }

    [[nodiscard]] Json objectOf(const Reference& reference) const {
        Json object = {{"kind", nameOf(reference.kind)}, {"recipe", recipeOf(reference.recipe)}};
        if (reference.kind == Reference::Kind::column) object["column"] = reference.column;
        if (reference.member != 0) object["member"] = reference.member;
        if (reference.kind == Reference::Kind::fileName) object["subRecipe"] = recipeOf(reference.other);
        if (reference.kind == Reference::Kind::indirect) object["through"] = recipeOf(reference.other);
        return object;
    }

    const project::WhereUsed& found_;
    const std::string& name_;
    const Output& output_;
};

}  // namespace

void where(const std::string& path, const std::string& name, bool json, const Output& output) {
    sqlite::Provider provider;
    project::Reader reader(provider, path);
    std::optional<Progress> progress(std::in_place, output);
    reader.tell(progress->hearer());
    const project::WhereUsed used(reader, name);
    progress.reset();
    if (!used.isKnown()) {
        throw automation::Error(automation::errFail,
                                "There is neither a variable nor a recipe " + inQuotes(name) + " in " + path);
    }
    const Printer printer(used, name, output);
    if (json) printer.printObject();
    else printer.print();
}

}  // namespace hx::cli
