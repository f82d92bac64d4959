// SPDX-License-Identifier: MIT
#include "adapters/jet/utf16.h"

#include <algorithm>

#include "automation/text.h"
#include "automation/utf8.h"

namespace hx::jet {

namespace {

constexpr Byte packedMark[] = {0xFF, 0xFE};

bool isPacked(Bytes stored) noexcept {
    return stored.size() >= 2 && stored[0] == packedMark[0] && stored[1] == packedMark[1];
}

bool isLeading(char32_t unit) noexcept { return unit >= 0xD800 && unit < 0xDC00; }
bool isTrailing(char32_t unit) noexcept { return unit >= 0xDC00 && unit < 0xE000; }

void appendUnit(Buffer& to, char32_t unit) { append16(to, static_cast<std::uint32_t>(unit)); }

void appendPoint(Buffer& to, char32_t point) {
    if (point < 0x10000) return appendUnit(to, point);
    appendUnit(to, 0xD800 + ((point - 0x10000) >> 10));
    appendUnit(to, 0xDC00 + ((point - 0x10000) & 0x3FF));
}

// A surrogate in three bytes, which is no UTF-8; 0 for anything else.
char32_t surrogateAt(std::string_view text, std::size_t at) noexcept {
    if (text.size() - at < 3 || text[at] != '\xED') return 0;
    const auto second = static_cast<unsigned char>(text[at + 1]), third = static_cast<unsigned char>(text[at + 2]);
    if (second < 0xA0 || second > 0xBF || third < 0x80 || third > 0xBF) return 0;
    return 0xD000U | (second & 0x3FU) << 6 | (third & 0x3FU);
}

void appendOther(Buffer& to, char byte) {
    const std::string character = automation::fromWindows1252(std::string_view(&byte, 1));
    appendPoint(to, automation::decodeUtf8(character, 0).point);
}

// How many bytes from the first on are ASCII.
std::size_t asciiStart(Bytes bytes) noexcept {
    std::size_t at = 0;
    for (; at + 8 <= bytes.size() && (get64(bytes.data() + at) & 0x8080808080808080U) == 0; at += 8) {
    }
    while (at < bytes.size() && bytes[at] < 0x80) ++at;
    return at;
}

/// Calls `plain` for the bytes that stand for a unit each and `whole` for those that stand for half of one.
template <class Plain, class Whole>
void unpack(Bytes stored, Plain&& plain, Whole&& whole) {
    stored = stored.subspan(2);
    for (bool packed = true; !stored.empty(); packed = !packed) {
        const void* const end = std::memchr(stored.data(), 0, stored.size());
        const std::size_t size =
            end == nullptr ? stored.size() : static_cast<std::size_t>(static_cast<const Byte*>(end) - stored.data());
        if (packed) plain(stored.first(size));
        else whole(stored.first(size));
        stored = stored.subspan(std::min(size + 1, stored.size()));
    }
}

}  // namespace

void appendUtf8(std::string& to, Bytes units) {
    for (std::size_t at = 0; at + 1 < units.size(); at += 2) {
        char32_t point = get16(units.data() + at);
        if (point < 0x80) {
            to += static_cast<char>(point);
            continue;
        }
        const char32_t next = at + 3 < units.size() ? get16(units.data() + at + 2) : 0;
        if (isLeading(point) && isTrailing(next)) {
            point = 0x10000 + ((point - 0xD800) << 10) + (next - 0xDC00);
            at += 2;
        } else if (isLeading(point) || isTrailing(point)) {
            to += '\xED';
            to += static_cast<char>(0x80 | (point >> 6 & 0x3F));
            to += static_cast<char>(0x80 | (point & 0x3F));
            continue;
        }
        automation::appendUtf8(to, point);
    }
}

std::string utf8Of(Bytes units) {
    std::string text;
    appendUtf8(text, units);
    return text;
}

void appendUtf16(Buffer& to, std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const automation::Utf8Character character = automation::decodeUtf8(text, at);
        if (character.length > 0) {
            appendPoint(to, character.point);
            at += character.length;
        } else if (const char32_t surrogate = surrogateAt(text, at); surrogate != 0) {
            appendUnit(to, surrogate);
            at += 3;
        } else {
            appendOther(to, text[at++]);
        }
    }
}

void appendText(std::string& to, Bytes stored) {
    if (!isPacked(stored)) return appendUtf8(to, stored);
    const auto plain = [&](Bytes bytes) {
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t ascii = asciiStart(bytes.subspan(at));
            to.append(reinterpret_cast<const char*>(bytes.data()) + at, ascii);
            at += ascii;
            if (at < bytes.size()) automation::appendUtf8(to, bytes[at++]);
        }
    };
    unpack(stored, plain, [&](Bytes bytes) { appendUtf8(to, bytes); });
}

void appendUnits(Buffer& to, Bytes stored) {
    if (!isPacked(stored)) return append(to, stored.first(stored.size() / 2 * 2));
    const auto plain = [&](Bytes bytes) {
        for (const Byte byte : bytes) append16(to, byte);
    };
    unpack(stored, plain, [&](Bytes bytes) { append(to, bytes.first(bytes.size() / 2 * 2)); });
}

void storeText(Buffer& to, std::string_view text, bool packs) {
    const std::size_t start = to.size();
    const bool ascii = std::ranges::all_of(text, [](char c) { return c > 0; });
    if (packs && ascii && text.size() > 2 && text.size() <= mostPacked) {
        append(to, packedMark);
        to.insert(to.end(), text.begin(), text.end());
        return;
    }
    appendUtf16(to, text);
    const std::size_t units = (to.size() - start) / 2;
    if (!packs || units <= 2 || units > mostPacked) return;
    Buffer packed(packedMark, packedMark + 2);
    for (std::size_t i = 0; i < units; ++i) {
        const std::uint16_t unit = get16(to.data() + start + i * 2);
        if (unit == 0 || unit > 0xFF) return;
        packed.push_back(static_cast<Byte>(unit));
    }
    to.resize(start);
    append(to, packed);
}

}  // namespace hx::jet
