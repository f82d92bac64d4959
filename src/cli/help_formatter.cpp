// SPDX-License-Identifier: MIT
#include "cli/help_formatter.h"

#include <sstream>
#include <utility>

#include "automation/text.h"

namespace hx::cli {

namespace {

// Goes on below the descriptions when the line is one of an option, else at the left.
std::string broken(std::string line, std::size_t descriptions) {
    const std::size_t indent = line.starts_with("  ") ? descriptions : 0;
    std::string lines;
    while (line.size() > HelpFormatter::width) {
        const std::size_t blank = line.rfind(' ', HelpFormatter::width);
        if (blank == std::string::npos || blank <= indent) break;  // a word that is too long stays whole
        lines += line.substr(0, blank) + "\n";
        line = std::string(indent, ' ') + line.substr(blank + 1);
    }
    return lines + line;
}

// From what the library says of the value, the type and the check of it: "TEXT:{add,update}", "INT", "TEXT:FILE".
std::string valueName(const std::string& type) {
    const std::size_t colon = type.find(':');
    if (colon == std::string::npos) return type;
    const std::string check = type.substr(colon + 1);
    if (check.starts_with('{')) return automation::replaceAll(check.substr(1, check.find('}') - 1), ",", "|");
    return check == "FILE" || check == "DIR" ? check : type.substr(0, colon);
}

}  // namespace

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
    if (!option->nonpositional()) return option->get_expected_max() > 1 ? " ..." : "";
    std::string text;
    if (const std::string value = valueName(option->get_type_name()); !value.empty()) text += " " + value;
    if (option->get_required()) text += " (required)";
    for (const CLI::Option* needed : option->get_needs()) text += " (with " + needed->get_name() + ")";
    return text;
}

std::string HelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
    std::istringstream text(CLI::Formatter::make_help(app, std::move(name), mode));
    std::string result;
    for (std::string line; std::getline(text, line);) result += broken(std::move(line), get_column_width()) + "\n";
    return result;
}

}  // namespace hx::cli
