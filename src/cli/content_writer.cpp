#include <cmath>
#include <ostream>

#include "automation/error.h"
#include "automation/text.h"
#include "cli/content.h"
#include "cli/json_output.h"

namespace hx::cli {

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
                                place + ", column " + inQuotes(cell.column) + ": " + error.description());
    }
}

class Writer {
  public:
    explicit Writer(std::ostream& stream) : stream_(stream) {}

    void write(const Content& content) {
        stream_ << "{\n  \"format\": \"hxrecipe\",\n  \"version\": 1,\n  \"recipes\": [";
        const char* separator = "\n";
        for (const ContentRecipe& recipe : content.recipes) {
            stream_ << separator;
            writeRecipe(recipe);
            separator = ",\n";
        }
        stream_ << (content.recipes.empty() ? "]" : "\n  ]");
        if (!content.orphans.empty()) {
            stream_ << ",\n  \"membersWithoutRecipe\": [";
            writeMembers(content.orphans, "    ", true);
            stream_ << "\n  ]";
        }
        stream_ << "\n}\n";
    }

  private:
    void writeRecipe(const ContentRecipe& recipe) {
        stream_ << "    {\n";
        if (recipe.id) stream_ << "      \"ID\": " << *recipe.id << ",\n";  // one that was read without has none yet
        const std::string place = "recipe " + inQuotes(recipe.name());
        for (const Cell& cell : recipe.cells) stream_ << "      " << fieldOf(cell, membersKey, place) << ",\n";
        stream_ << "      \"members\": [";
        writeMembers(recipe.members, "        ", false);
        stream_ << (recipe.members.empty() ? "]" : "\n      ]") << "\n    }";
    }

    void writeMembers(const std::vector<ContentMember>& members, const char* indent, bool withParent) {
        const char* separator = "\n";
        for (const ContentMember& member : members) {
            stream_ << separator << indent << "{";
            writeMember(member, withParent);
            stream_ << "}";
            separator = ",\n";
        }
    }

    void writeMember(const ContentMember& member, bool withParent) {
        const char* separator = "";
        const auto write = [&](const std::string& text) {
            stream_ << separator << text;
            separator = ", ";
        };
        if (member.id) write("\"ID\": " + std::to_string(*member.id));
        if (withParent) write("\"ParentID\": " + std::to_string(member.parent));
        const std::string place = "member " + std::to_string(member.id.value_or(0));
        for (const Cell& cell : member.cells) write(fieldOf(cell, subRecipeKey, place));
        if (member.child != 0) write("\"ChildID\": " + std::to_string(member.child));
        if (member.isSubRecipe()) write("\"subRecipe\": " + (member.childName ? textOf(*member.childName) : "null"));
    }

    std::ostream& stream_;
};

}  // namespace

void writeContent(const Content& content, std::ostream& stream) { Writer(stream).write(content); }

}  // namespace hx::cli
