// SPDX-License-Identifier: MIT
#include "cli/differences_output.h"

#include "cli/json_output.h"

namespace hx::cli {

using exchange::Difference;
using exchange::jsonOf;
using Kind = Difference::Kind;

namespace {

std::string_view nameOf(Kind kind) {
    return kind == Kind::added ? "added" : kind == Kind::removed ? "removed" : "changed";
}

std::string lineOf(const Difference& difference) {
    std::string line = difference.kind == Kind::added ? "+ " : difference.kind == Kind::removed ? "- " : "~ ";
    line += difference.recipe.empty() ? "without a recipe" : "recipe " + inQuotes(difference.recipe);
    if (!difference.member.empty()) line += ", " + difference.member;
    if (difference.column.empty()) return line;
    return line + ", " + difference.column + ": " + jsonLine(jsonOf(difference.before)) + " -> " +
           jsonLine(jsonOf(difference.after));
}

Json objectOf(const Difference& difference) {
    Json object = {{"kind", nameOf(difference.kind)}};
    if (!difference.recipe.empty()) object["recipe"] = difference.recipe;
    if (!difference.member.empty()) object["member"] = difference.member;
    if (difference.column.empty()) return object;
    object["column"] = difference.column;
    object["before"] = jsonOf(difference.before);
    object["after"] = jsonOf(difference.after);
    return object;
}

}  // namespace

void print(const std::vector<Difference>& differences, bool json, const Output& output) {
    if (json) output.results << "{\"differences\": [";
    const char* separator = "\n";
    for (const Difference& difference : differences) {
        if (json) output.results << separator << jsonLine(objectOf(difference));
        else output.results << lineOf(difference) << "\n";
        separator = ",\n";
    }
    if (json) output.results << "\n]}\n";
    else if (differences.empty()) output.results << "No differences.\n";
}

}  // namespace hx::cli
