// SPDX-License-Identifier: MIT
#include "layers/include_reader.h"

#include <algorithm>
#include <optional>

namespace hx::layers {
namespace {

std::string_view withoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

bool takeWord(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text = withoutLeadingBlanks(text.substr(word.size()));
    return true;
}

std::optional<Include> includeIn(std::string_view line) {
    line = withoutLeadingBlanks(line);
    if (!takeWord(line, "#") || !takeWord(line, "include") || line.empty()) return std::nullopt;
    const bool inQuotes = line.front() == '"';
    if (!inQuotes && line.front() != '<') return std::nullopt;
    const auto end = line.find(inQuotes ? '"' : '>', 1);
    if (end == std::string_view::npos) return std::nullopt;
    return Include{0, std::string(line.substr(1, end - 1)), inQuotes};
}

/// The line without its block comments; `inComment` carries over from line to line.
std::string withoutBlockComments(std::string_view line, bool& inComment) {
    std::string rest;
    for (std::size_t at = 0; at < line.size();) {
        const auto mark = line.substr(at, 2);
        if (!inComment && mark == "//") break;
        if (mark == (inComment ? "*/" : "/*")) {
            inComment = !inComment;
            at += 2;
            continue;
        }
        if (!inComment) rest += line[at];
        ++at;
    }
    return rest;
}

template <typename Use>
void forEachLine(std::string_view text, Use use) {
    for (int number = 1; !text.empty(); ++number) {
        const auto end = text.find('\n');
        use(number, text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

}  // namespace

std::vector<Include> includesOf(std::string_view text) {
    std::vector<Include> found;
    bool inComment = false;
    forEachLine(text, [&](int number, std::string_view line) {
        if (auto include = includeIn(withoutBlockComments(line, inComment))) {
            include->line = number;
            found.push_back(*include);
        }
    });
    return found;
}

int lineCount(std::string_view text) {
    int count = 0;
    forEachLine(text, [&](int number, std::string_view) { count = number; });
    return count;
}

}  // namespace hx::layers
