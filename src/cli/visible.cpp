#include "cli/visible.h"

#include <algorithm>
#include <array>

namespace hx::cli {

namespace {

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

// Control and format characters and the two separators of lines, but not the format characters that are seen.
struct Range {
    char32_t first, last;
};
constexpr auto hidden = std::to_array<Range>({{0, 0x1F},
                                              {0x7F, 0x9F},
                                              {0xAD, 0xAD},
                                              {0x61C, 0x61C},
                                              {0x180E, 0x180E},
                                              {0x200B, 0x200F},
                                              {0x2028, 0x202E},
                                              {0x2060, 0x206F},
                                              {0xFEFF, 0xFEFF},
                                              {0xFFF9, 0xFFFB},
                                              {0x1BCA0, 0x1BCA3},
                                              {0x1D173, 0x1D17A},
                                              {0xE0000, 0xE007F}});

bool isHidden(char32_t point) {
    return std::ranges::any_of(hidden, [&](const Range& range) { return point >= range.first && point <= range.last; });
}

char32_t codePoint(std::string_view character) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    if (character.size() == 1) return byte(0);
    char32_t point = byte(0) & (0x7FU >> character.size());
    for (std::size_t i = 1; i < character.size(); ++i) point = point << 6U | (byte(i) & 0x3FU);
    return point;
}

void appendHex(std::string& text, unsigned number, int digits) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += hex[number >> shift & 15U];
}

void appendBytes(std::string& text, std::string_view bytes) {
    for (const char c : bytes) appendHex(text += "\\x", static_cast<unsigned char>(c), 2);
}

void appendJson(std::string& text, char32_t point) {
    if (point < 0x10000) return appendHex(text += "\\u", point, 4);
    appendHex(text += "\\u", 0xD800 + ((point - 0x10000) >> 10U), 4);
    appendHex(text += "\\u", 0xDC00 + (point & 0x3FFU), 4);
}

// `show` appends what stands for a hidden character, whose bytes it gets.
template <class Show>
std::string shown(std::string_view text, const Show& show) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = characterLength(text, at);
        const std::string_view character = text.substr(at, std::max<std::size_t>(length, 1));
        if (length == 0 || isHidden(codePoint(character))) show(result, character);
        else result += character;
        at += character.size();
    }
    return result;
}

}  // namespace

std::size_t characterLength(std::string_view text, std::size_t at) {
    const int count = followers(text, at);
    for (int i = 1; i <= count; ++i) {
        const std::size_t next = at + static_cast<std::size_t>(i);
        if (next >= text.size() || (static_cast<unsigned char>(text[next]) & 0xC0) != 0x80) return 0;
    }
    return static_cast<std::size_t>(count + 1);
}

std::string visible(std::string_view text) { return shown(text, appendBytes); }

std::string inQuotes(std::string_view text) { return '"' + visible(text) + '"'; }

std::string visibleLines(std::string_view text) {
    return shown(text, [](std::string& result, std::string_view character) {
        if (character == "\n" || character == "\t") result += character;
        else appendBytes(result, character);
    });
}

// The line ends and the indents of JSON itself stay; in its texts there are none.
std::string visibleJson(std::string_view json) {
    return shown(json, [](std::string& result, std::string_view character) {
        if (character == "\n") result += '\n';
        else appendJson(result, codePoint(character));
    });
}

}  // namespace hx::cli
