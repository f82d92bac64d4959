// SPDX-License-Identifier: MIT
#include "lists/text_converter.h"

#include <gtest/gtest.h>

namespace hx::lists {
namespace {

using Stop = TextConverter::Stop;

struct Converted {
    std::string text;
    std::size_t taken = 0;
    Stop stop = Stop::AtTheEnd;
    friend bool operator==(const Converted&, const Converted&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Converted& c) {
        return out << '"' << c.text << "\" " << c.taken << " " << static_cast<int>(c.stop);
    }
};

Converted converted(const std::string& encoding, std::string_view bytes) {
    const auto converter = TextConverter::open(encoding);
    if (!converter) return {"unknown encoding"};
    std::string text;
    const auto [taken, stop] = converter->convert(bytes, text);
    return {text, taken, stop};
}

TEST(TextConverter, ReadsTheEncodingsOfLists) {
    EXPECT_EQ(converted("UTF-8", "S\xC3\xBC\xC3\x9F"), (Converted{"Süß", 5, Stop::AtTheEnd}));
    EXPECT_EQ(converted("windows-1252", "S\xFC\xDF \x80"), (Converted{"Süß €", 5, Stop::AtTheEnd}));
    EXPECT_EQ(converted("ISO-8859-1", "S\xFC\xDF"), (Converted{"Süß", 3, Stop::AtTheEnd}));
    EXPECT_EQ(converted("ISO-8859-2", "\xA3uk"), (Converted{"Łuk", 3, Stop::AtTheEnd}));
    EXPECT_EQ(converted("CP850", "\x81"), (Converted{"ü", 1, Stop::AtTheEnd}));
    EXPECT_EQ(converted("US-ASCII", "abc"), (Converted{"abc", 3, Stop::AtTheEnd}));
    EXPECT_EQ(converted("SHIFT_JIS", "\x83\x8C"), (Converted{"レ", 2, Stop::AtTheEnd}));
    EXPECT_EQ(converted("UTF-16LE", std::string_view("A\0\xFC\0", 4)), (Converted{"Aü", 4, Stop::AtTheEnd}));
    EXPECT_EQ(converted("UTF-16BE", std::string_view("\xD8\x3D\xDE\x00", 4)), (Converted{"😀", 4, Stop::AtTheEnd}));
}

TEST(TextConverter, WaitsForTheRestOfACharacter) {
    EXPECT_EQ(converted("UTF-8", "a\xE2\x82"), (Converted{"a", 1, Stop::WithinACharacter}));
    EXPECT_EQ(converted("SHIFT_JIS", "a\x83"), (Converted{"a", 1, Stop::WithinACharacter}));
    EXPECT_EQ(converted("UTF-16LE", std::string_view("A\0B", 3)), (Converted{"A", 2, Stop::WithinACharacter}));
    EXPECT_EQ(converted("UTF-16BE", std::string_view("\xD8\x3D", 2)), (Converted{"", 0, Stop::WithinACharacter}));
}

TEST(TextConverter, StopsAtBytesThatAreNoText) {
    EXPECT_EQ(converted("UTF-8",
                        "ab\xFF"
                        "c"),
              (Converted{"ab", 2, Stop::AtNoText}));
    EXPECT_EQ(converted("WINDOWS-1252", "ab\x81"), (Converted{"ab", 2, Stop::AtNoText}));
    EXPECT_EQ(converted("US-ASCII", "ab\xE4"), (Converted{"ab", 2, Stop::AtNoText}));
    EXPECT_EQ(converted("UTF-16LE", std::string_view("A\0\0\xDC", 4)), (Converted{"A", 2, Stop::AtNoText}));
    EXPECT_EQ(converted("UTF-16BE", std::string_view("\xD8\x3D\0A", 4)), (Converted{"", 0, Stop::AtNoText}));
}

TEST(TextConverter, KnowsNoOtherNames) {
    for (const char* name : {"klingon", "CP", "CP1252x", "ISO-8859-99"})
        EXPECT_FALSE(TextConverter::open(name)) << name;
}

}  // namespace
}  // namespace hx::lists
