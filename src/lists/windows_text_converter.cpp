// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <charconv>
#include <windows.h>

#include "automation/text.h"
#include "automation/utf8.h"
#include "lists/text_converter.h"

namespace hx::lists {

namespace {

using Stop = TextConverter::Stop;

constexpr UINT ascii = 20127;  // of which Windows drops the highest bit

class Utf8Converter : public TextConverter {
  public:
    Result convert(std::string_view bytes, std::string& text) override {
        const std::size_t wrong = automation::findNoUtf8(bytes);
        const std::size_t taken = std::min(wrong, bytes.size());
        text.append(bytes.substr(0, taken));
        if (wrong == std::string_view::npos) return {taken, Stop::AtTheEnd};
        const bool mayGoOn = bytes.size() - taken == automation::unfinishedUtf8(bytes);
        return {taken, mayGoOn ? Stop::WithinACharacter : Stop::AtNoText};
    }
};

class Utf16Converter : public TextConverter {
  public:
    explicit Utf16Converter(bool bigEndian) : low_(bigEndian ? 1 : 0) {}

    Result convert(std::string_view bytes, std::string& text) override {
        std::size_t at = 0;
        while (bytes.size() - at >= 2) {
            const char32_t first = unitAt(bytes, at);
            const bool isPair = first >= 0xD800 && first < 0xDC00;
            if (isPair && bytes.size() - at < 4) break;
            const char32_t second = isPair ? unitAt(bytes, at + 2) : 0xDC00;
            const bool isWrong = second < 0xDC00 || second > 0xDFFF || (first >= 0xDC00 && first <= 0xDFFF);
            if (isWrong) return {at, Stop::AtNoText};
            automation::appendUtf8(text, isPair ? 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00) : first);
            at += isPair ? 4 : 2;
        }
        return {at, at == bytes.size() ? Stop::AtTheEnd : Stop::WithinACharacter};
    }

  private:
    [[nodiscard]] char32_t unitAt(std::string_view bytes, std::size_t at) const {
        const auto low = static_cast<unsigned char>(bytes[at + low_]);
        const auto high = static_cast<unsigned char>(bytes[at + 1 - low_]);
        return static_cast<char32_t>(high << 8 | low);
    }

    std::size_t low_;
};

/// A code page of Windows whose characters take one byte or two.
class PageConverter : public TextConverter {
  public:
    PageConverter(UINT page, const CPINFO& info) : page_(page), hasPairs_(info.MaxCharSize == 2) {
        for (std::size_t byte = 0; byte < singles_.size(); ++byte) {
            const char single = static_cast<char>(byte);
            if (!isLead(single)) singles_[byte] = utf8Of({&single, 1});
        }
    }

    Result convert(std::string_view bytes, std::string& text) override {
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t length = isLead(bytes[at]) ? 2 : 1;
            if (bytes.size() - at < length) return {at, Stop::WithinACharacter};
            const std::string character =
                length == 1 ? singles_[static_cast<unsigned char>(bytes[at])] : utf8Of(bytes.substr(at, length));
            if (character.empty()) return {at, Stop::AtNoText};
            text += character;
            at += length;
        }
        return {bytes.size(), Stop::AtTheEnd};
    }

  private:
    [[nodiscard]] bool isLead(char byte) const { return hasPairs_ && IsDBCSLeadByteEx(page_, static_cast<BYTE>(byte)); }

    // Empty for what is no character. Windows gives bytes that a page does not use to controls and to private use.
    [[nodiscard]] std::string utf8Of(std::string_view bytes) const {
        wchar_t unit = 0;
        const int count =
            MultiByteToWideChar(page_, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()), &unit, 1);
        const bool isOfAnsi = page_ >= 1250 && page_ <= 1258;
        const bool isNone = (isOfAnsi && unit >= 0x80 && unit <= 0x9F) || (unit >= 0xE000 && unit <= 0xF8FF);
        const bool isBeyondAscii = page_ == ascii && unit != static_cast<unsigned char>(bytes.front());
        std::string text;
        if (count == 1 && !isNone && !isBeyondAscii) automation::appendUtf8(text, unit);
        return text;
    }

    UINT page_;
    bool hasPairs_;
    std::array<std::string, 256> singles_;
};

struct NamedPage {
    std::string_view name;
    UINT page;
};
constexpr auto namedPages = std::to_array<NamedPage>({
    {"ASCII", ascii},
    {"US-ASCII", ascii},
    {"LATIN1", 28591},
    {"LATIN2", 28592},
    {"LATIN5", 28599},
    {"LATIN-9", 28605},
    {"KOI8-R", 20866},
    {"KOI8-U", 21866},
    {"MACINTOSH", 10000},
    {"SHIFT_JIS", 932},
    {"SHIFT-JIS", 932},
    {"SJIS", 932},
    {"GB2312", 936},
    {"GBK", 936},
    {"BIG5", 950},
    {"UHC", 949},
    {"EUC-KR", 949},
    {"TIS-620", 874},
});

/// Names that end in the number of a page, or of one of ISO 8859's, which stand from 28590 on.
constexpr auto numberedPages = std::to_array<NamedPage>({
    {"WINDOWS-", 0},
    {"CP", 0},
    {"IBM", 0},
    {"ISO-8859-", 28590},
    {"ISO8859-", 28590},
    {"ISO_8859-", 28590},
});

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::ranges::any_of(names, [&](std::string_view known) { return automation::equalIgnoreCase(name, known); });
}

UINT pageOf(std::string_view name) {
    for (const NamedPage& named : namedPages) {
        if (isOneOf(name, {named.name})) return named.page;
    }
    for (const NamedPage& numbered : numberedPages) {
        if (!isOneOf(name.substr(0, numbered.name.size()), {numbered.name})) continue;
        UINT number = 0;
        const char* const end = name.data() + name.size();
        const auto read = std::from_chars(name.data() + numbered.name.size(), end, number);
        if (read.ec == std::errc() && read.ptr == end && number > 0) return numbered.page + number;
    }
    return 0;
}

}  // namespace

std::unique_ptr<TextConverter> TextConverter::open(const std::string& encoding) {
    if (isOneOf(encoding, {"UTF-8", "UTF8"})) return std::make_unique<Utf8Converter>();
    if (isOneOf(encoding, {"UTF-16", "UTF-16LE"})) return std::make_unique<Utf16Converter>(false);
    if (isOneOf(encoding, {"UTF-16BE"})) return std::make_unique<Utf16Converter>(true);
    CPINFO info{};
    const UINT page = pageOf(encoding);
    if (page == 0 || !GetCPInfo(page, &info) || info.MaxCharSize > 2) return nullptr;
    return std::make_unique<PageConverter>(page, info);
}

}  // namespace hx::lists
