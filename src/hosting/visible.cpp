// SPDX-License-Identifier: MIT
#include "hosting/visible.h"

#include <algorithm>
#include <array>

#include "automation/utf8.h"

namespace hx::hosting {

namespace {

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
        const automation::Utf8Character next = automation::decodeUtf8(text, at);
        const std::string_view character = text.substr(at, std::max<std::size_t>(next.length, 1));
        if (next.length == 0 || isHidden(next.point)) show(result, character);
        else result += character;
        at += character.size();
    }
    return result;
}

}  // namespace

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
        else appendJson(result, automation::decodeUtf8(character, 0).point);
    });
}

}  // namespace hx::hosting
