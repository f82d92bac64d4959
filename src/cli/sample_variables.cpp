#include <algorithm>
#include <array>
#include <set>

#include "automation/text.h"
#include "cli/sample.h"

namespace hx::cli {

namespace {

constexpr std::string_view header = "Name;Type;Comment";
constexpr std::array<std::string_view, 5> types = {"BOOL", "INT", "DINT", "REAL", "STRING"};
constexpr std::size_t longest = 255;

void requireName(const Line& line, const std::string& name) {
    for (const std::string& part : automation::split(name, '.')) {
        if (part.empty() || automation::trim(part) != part) line.fail("\"" + name + "\" is not a variable name");
    }
    if (automation::characterCount(name) > longest) line.fail("the name is longer than 255 characters");
}

SampleVariable readVariable(const Line& line) {
    const std::vector<std::string> fields = automation::split(line.text, ';');
    if (fields.size() != 3) line.fail("three fields are expected, " + std::to_string(fields.size()) + " found");
    requireName(line, fields[0]);
    if (std::ranges::find(types, fields[1]) == types.end()) {
        line.fail("the type \"" + fields[1] + "\" is none of BOOL, INT, DINT, REAL, STRING");
    }
    if (automation::characterCount(fields[2]) > longest) line.fail("the comment is longer than 255 characters");
    return {fields[0], fields[1], fields[2]};
}

}  // namespace

std::vector<SampleVariable> readVariables(const std::vector<Line>& lines) {
    std::vector<SampleVariable> variables;
    std::set<std::string> names;
    for (const Line& line : lines) {
        if (line.number == 1) {
            if (line.text != header) line.fail("the first line must be \"" + std::string(header) + "\"");
        } else if (!line.text.empty()) {
            variables.push_back(readVariable(line));
            const std::string& name = variables.back().name;
            if (!names.insert(automation::foldCase(name)).second)
                line.fail("the variable \"" + name + "\" exists already");
        }
    }
    return variables;
}

}  // namespace hx::cli
