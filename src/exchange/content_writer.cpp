// SPDX-License-Identifier: MIT
#include "exchange/content_writer.h"

#include <cmath>
#include <string>
#include <utility>

#include "automation/error.h"
#include "automation/text.h"
#include "exchange/json.h"
#include "hosting/visible.h"

namespace hx::exchange {

namespace {

// The keys that are no columns. A column of that name could not be told from them.
constexpr std::string_view membersKey = "members";
constexpr std::string_view subRecipeKey = "subRecipe";

std::string textOf(const Value& value) {
    if (const auto* number = std::get_if<double>(&value); number != nullptr && !std::isfinite(*number)) {
        throw automation::Error(automation::errFail, "the number is infinite and has no form in JSON");
    }
    try {
        return jsonOf(value).dump();
    } catch (const Json::type_error&) {
        throw automation::Error(automation::errFail, "the text is not UTF-8");
    }
}

std::string field(const Cell& cell, std::string_view reserved) {
    if (automation::equalIgnoreCase(cell.column, reserved)) {
        throw automation::Error(automation::errFail, "a column of this name cannot be exported");
    }
    return textOf(cell.column) + ": " + textOf(cell.value);
}

std::string fieldOf(const Cell& cell, std::string_view reserved, const std::string& place) {
    try {
        return field(cell, reserved);
    } catch (const automation::Error& error) {
        throw automation::Error(error.number(),
                                place + ", column " + hosting::inQuotes(cell.column) + ": " + error.description());
    }
}

class Writer {
  public:
    std::string write(const Content& content) {
        add("{\n  \"format\": \"hxrecipe\",\n  \"version\": 1,\n  \"recipes\": [");
        const char* separator = "\n";
        for (const ContentRecipe& recipe : content.recipes) {
            add(separator);
            writeRecipe(recipe);
            separator = ",\n";
        }
        add((content.recipes.empty() ? "]" : "\n  ]"));
        if (!content.orphans.empty()) {
            add(",\n  \"membersWithoutRecipe\": [");
            writeMembers(content.orphans, "    ", true);
            add("\n  ]");
        }
        add("\n}\n");
        return std::move(text_);
    }

  private:
    void writeRecipe(const ContentRecipe& recipe) {
        add("    {\n");
        if (recipe.id)
            add("      \"ID\": ", std::to_string(*recipe.id), ",\n");  // one that was read without has none yet
        const std::string place = "recipe " + hosting::inQuotes(recipe.name());
        for (const Cell& cell : recipe.cells) add("      ", fieldOf(cell, membersKey, place), ",\n");
        add("      \"members\": [");
        writeMembers(recipe.members, "        ", false);
        add((recipe.members.empty() ? "]" : "\n      ]"), "\n    }");
    }

    void writeMembers(const std::vector<ContentMember>& members, const char* indent, bool withParent) {
        const char* separator = "\n";
        for (const ContentMember& member : members) {
            add(separator, indent, "{");
            writeMember(member, withParent);
            add("}");
            separator = ",\n";
        }
    }

    void writeMember(const ContentMember& member, bool withParent) {
        const char* separator = "";
        const auto write = [&](const std::string& text) {
            add(separator, text);
            separator = ", ";
        };
        if (member.id) write("\"ID\": " + std::to_string(*member.id));
        if (withParent) write("\"ParentID\": " + std::to_string(member.parent));
        const std::string place = "member " + std::to_string(member.id.value_or(0));
        for (const Cell& cell : member.cells) write(fieldOf(cell, subRecipeKey, place));
        if (member.child != 0) write("\"ChildID\": " + std::to_string(member.child));
        if (member.isSubRecipe()) write("\"subRecipe\": " + (member.childName ? textOf(*member.childName) : "null"));
    }

    template <class... Parts>
    void add(const Parts&... parts) {
        (text_.append(parts), ...);
    }

    std::string text_;
};

}  // namespace

std::string exportOf(const Content& content) { return Writer().write(content); }

}  // namespace hx::exchange
