#include "cli/text_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "automation/text.h"

namespace hx::cli {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

std::string contents(const std::string& path) {
    if (std::filesystem::is_directory(path)) refuse(path + " is a folder, not a file");
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) refuse(path + " cannot be read: " + std::generic_category().message(errno));
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) refuse(path + " cannot be read");
    return text;
}

// The bytes that follow a lead byte, or -1 when the byte cannot lead. Overlong forms and surrogates count as faults
// too.
int followers(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const unsigned lead = byte(at);
    const unsigned second = byte(at + 1);
    if (lead < 0x80) return 0;
    if (lead >= 0xC2 && lead <= 0xDF) return 1;
    if (lead == 0xE0) return second >= 0xA0 ? 2 : -1;
    if (lead == 0xED) return second <= 0x9F ? 2 : -1;
    if (lead >= 0xE1 && lead <= 0xEF) return 2;
    if (lead == 0xF0) return second >= 0x90 ? 3 : -1;
    if (lead == 0xF4) return second <= 0x8F ? 3 : -1;
    return lead >= 0xF1 && lead <= 0xF3 ? 3 : -1;
}

// Where the text is not UTF-8.
std::optional<std::size_t> fault(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int count = followers(text, at);
        if (count < 0) return at;
        for (int i = 0; i < count; ++i) {
            if (++at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return at - 1;
        }
    }
    return std::nullopt;
}

}  // namespace

void Line::fail(const std::string& problem) const {
    refuse(file + ", line " + std::to_string(number) + ": " + problem);
}

std::string readText(const std::string& path) {
    std::string text = contents(path);
    if (text.starts_with(byteOrderMark)) Line{path, 1, {}}.fail("the file begins with a byte order mark");
    if (const auto at = fault(text)) {
        const auto before = std::ranges::count(std::string_view(text).substr(0, *at), '\n');
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

}  // namespace hx::cli
