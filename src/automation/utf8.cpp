// SPDX-License-Identifier: MIT
#include "automation/utf8.h"

#include <algorithm>

namespace hx::automation {

namespace {

unsigned char byteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

// How many bytes a character with this first byte takes; 0 when none has it.
std::size_t lengthBehind(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

bool isFollower(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Overlong forms, surrogates and what lies beyond U+10FFFF are told by the second byte.
bool mayFollow(unsigned char lead, unsigned char second) {
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return second >= lowest && second <= highest;
}

}  // namespace

Utf8Character decodeUtf8Sequence(std::string_view text, std::size_t at) {
    const unsigned char lead = byteAt(text, at);
    const std::size_t length = lengthBehind(lead);
    if (length < 2 || length > text.size() - at || !mayFollow(lead, byteAt(text, at + 1))) return {};
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = byteAt(text, at + i);
        if (!isFollower(next)) return {};
        point = point << 6U | (next & 0x3FU);
    }
    return {point, length};
}

std::size_t findNoUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = decodeUtf8(text, at).length;
        if (length == 0) return at;
        at += length;
    }
    return std::string_view::npos;
}

std::size_t unfinishedUtf8(std::string_view text) {
    for (std::size_t count = 1; count <= std::min<std::size_t>(3, text.size()); ++count) {
        const unsigned char byte = byteAt(text, text.size() - count);
        if (isFollower(byte)) continue;
        const bool begins =
            lengthBehind(byte) > count && (count == 1 || mayFollow(byte, byteAt(text, text.size() - count + 1)));
        return begins ? count : 0;
    }
    return 0;
}

void appendUtf8(std::string& text, char32_t point) {
    const auto put = [&](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
    const auto follow = [&](unsigned shift) { put(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) return put(point);
    if (point < 0x800) {
        put(0xC0 | (point >> 6));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12));
        follow(6);
    } else {
        put(0xF0 | (point >> 18));
        follow(12);
        follow(6);
    }
    follow(0);
}

}  // namespace hx::automation
