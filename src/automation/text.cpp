// SPDX-License-Identifier: MIT
#include "automation/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "automation/utf8.h"

namespace hx::automation {

namespace {

constexpr char32_t invalidByte = 0x110000;  // added to a byte that is not UTF-8, so that it equals only itself

// The next code point of `text` at `at`, which is moved behind it.
char32_t nextCodePoint(std::string_view text, std::size_t& at) {
    const Utf8Character next = decodeUtf8(text, at);
    const auto byte = static_cast<unsigned char>(text[at]);
    at += next.length == 0 ? 1 : next.length;
    return next.length == 0 ? invalidByte + byte : next.point;
}

void append(std::string& out, char32_t point) {
    if (point < invalidByte) return appendUtf8(out, point);
    out += static_cast<char>(static_cast<unsigned char>(point - invalidByte));
}

// Latin Extended-A pairs upper and lower case on neighbouring code points, in three runs of different parity.
char32_t foldLatinExtended(char32_t c) {
    if (c == 0x130) return c;  // the store takes it for another letter than "i", and so do all
    if (c == 0x178) return 0xFF;
    const bool evenIsUpper = (c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177);
    const bool oddIsUpper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if (evenIsUpper && c % 2 == 0) return c + 1;
    if (oddIsUpper && c % 2 == 1) return c + 1;
    return c;
}

char32_t foldGreek(char32_t c) {
    if (c == 0x386) return 0x3AC;
    if (c >= 0x388 && c <= 0x38A) return c + 37;
    if (c == 0x38C) return 0x3CC;
    if (c == 0x38E || c == 0x38F) return c + 63;
    if (c >= 0x391 && c <= 0x3AB && c != 0x3A2) return c + 32;
    return c;
}

bool isAscii(char c) { return (c & 0x80) == 0; }
char foldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

char32_t fold(char32_t c) {
    if (c < 0x80) return static_cast<char32_t>(foldAscii(static_cast<char>(c)));
    if (c < 0x100) return c >= 0xC0 && c <= 0xDE && c != 0xD7 ? c + 32 : c;
    if (c < 0x180) return foldLatinExtended(c);
    if (c >= 0x386 && c <= 0x3AB) return foldGreek(c);
    if (c >= 0x400 && c <= 0x40F) return c + 80;
    if (c >= 0x410 && c <= 0x42F) return c + 32;
    return c == 0x1E9E ? 0xDF : c;
}

// The code points of the bytes 0x80 to 0x9F; the five unused ones keep their number.
constexpr std::array<char32_t, 32> windows1252 = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                                  0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

}  // namespace

std::string foldCase(std::string_view text) {
    std::string folded;
    appendFolded(folded, text);
    return folded;
}

namespace {

/// Eight bytes at a time.
using Word = std::uint64_t;
constexpr Word eachByte = 0x0101010101010101;

constexpr bool isAscii(Word word) { return (word & (0x80 * eachByte)) == 0; }

// What is added sets a byte's highest bit from 'A' on, and from what follows 'Z' on. 0x20 lies between upper and lower.
constexpr Word foldAscii(Word word) {
    const Word upper = (word + (0x80 - 'A') * eachByte) & ~(word + (0x80 - 'Z' - 1) * eachByte) & (0x80 * eachByte);
    return word | upper >> 2U;
}

}  // namespace

// Most names are ASCII throughout.
void appendFolded(std::string& to, std::string_view text) {
    const std::size_t start = to.size();
    to.resize(start + text.size());
    std::size_t at = 0;
    for (Word word = 0; at + sizeof word <= text.size(); at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if (!isAscii(word)) break;
        word = foldAscii(word);
        std::memcpy(to.data() + start + at, &word, sizeof word);
    }
    for (; at < text.size() && isAscii(text[at]); ++at) to[start + at] = foldAscii(text[at]);
    if (at == text.size()) return;
    to.resize(start + at);
    while (at < text.size()) {
        if (isAscii(text[at])) to += foldAscii(text[at++]);
        else append(to, fold(nextCodePoint(text, at)));
    }
}

std::strong_ordering compareIgnoreCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    std::size_t i = 0;
    for (; i < common && isAscii(a[i]) && isAscii(b[i]); ++i) {
        const auto order = foldAscii(a[i]) <=> foldAscii(b[i]);
        if (order != 0) return order;
    }
    std::size_t j = i;
    while (i < a.size() && j < b.size()) {
        const auto order = fold(nextCodePoint(a, i)) <=> fold(nextCodePoint(b, j));
        if (order != 0) return order;
    }
    return (i < a.size()) <=> (j < b.size());
}

bool equalIgnoreCase(std::string_view a, std::string_view b) { return compareIgnoreCase(a, b) == 0; }

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t start = 0;;) {
        const auto end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos) return parts;
        start = end + 1;
    }
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    if (from.empty()) return std::string(text);
    for (std::size_t start = 0;;) {
        const auto found = text.find(from, start);
        result += text.substr(start, found - start);
        if (found == std::string_view::npos) return result;
        result += to;
        start = found + from.size();
    }
}

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        appendUtf8(text, code >= 0x80 && code < 0xA0 ? windows1252[code - 0x80U] : char32_t{code});
    }
    return text;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) nextCodePoint(text, at);
    return count;
}

std::string_view leftCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (count-- > 0 && at < text.size()) nextCodePoint(text, at);
    return text.substr(0, at);
}

}  // namespace hx::automation
