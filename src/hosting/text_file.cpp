// SPDX-License-Identifier: MIT
#include "hosting/text_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "automation/text.h"
#include "automation/utf8.h"
#include "hosting/file_bytes.h"

namespace hx::hosting {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

std::string contents(const std::string& path) {
    const std::filesystem::path place = fileSystemPath(path);
    if (std::filesystem::is_directory(place)) refuse(path + " is a folder, not a file");
    std::ifstream file(place, std::ios::binary);
    if (!file.is_open()) refuse(path + " cannot be read: " + std::generic_category().message(errno));
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) refuse(path + " cannot be read");
    return text;
}

}  // namespace

void Line::fail(const std::string& problem) const {
    refuse(file + ", line " + std::to_string(number) + ": " + problem);
}

void Line::fail(const automation::Sentence& problem, std::initializer_list<std::string_view> names) const {
    constexpr automation::Sentence where{"%1, line %2: %3", "%1, Zeile %2: %3"};
    const auto inWords = [&](automation::Language language) {
        return say(language, where, {file, std::to_string(number), say(language, problem, names)});
    };
    throw automation::Error(automation::errFail, inWords(automation::Language::english),
                            inWords(automation::Language::german));
}

std::string readText(const std::string& path) {
    std::string text = contents(path);
    if (text.starts_with(byteOrderMark)) Line{path, 1, {}}.fail("the file begins with a byte order mark");
    if (const auto at = automation::findNoUtf8(text); at != std::string::npos) {
        const auto before = std::ranges::count(std::string_view(text).substr(0, at), '\n');
        Line{path, static_cast<int>(before) + 1, {}}.fail("the text is not UTF-8");
    }
    return text;
}

std::vector<Line> readLines(const std::string& path) {
    const std::string text = readText(path);
    std::vector<Line> lines;
    if (text.empty()) return lines;
    for (std::string& part : automation::split(text, '\n')) {
        if (part.ends_with('\r')) part.pop_back();
        lines.push_back({path, static_cast<int>(lines.size()) + 1, std::move(part)});
    }
    if (lines.back().text.empty()) lines.pop_back();  // what follows the last line's end is no line
    return lines;
}

}  // namespace hx::hosting
