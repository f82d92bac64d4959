// SPDX-License-Identifier: MIT
#include "project/name_order.h"

#include <algorithm>
#include <array>

#include "automation/text.h"

namespace hx::project {

namespace {

struct Letter {
    std::string_view marked, plain;
};
constexpr std::array<Letter, 4> germanLetters = {{{"ä", "a"}, {"ö", "o"}, {"ü", "u"}, {"ß", "ss"}}};

std::string lookUpForm(std::string_view name) {
    std::string text = automation::foldCase(name);
    const bool plain = std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (plain) return text;
    for (const Letter& letter : germanLetters) text = automation::replaceAll(text, letter.marked, letter.plain);
    return text;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isPoint(char c) { return c == ',' || c == '.'; }
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

/// The digits of a number before and behind its decimal point, without zeros that do not count.
struct Number {
    std::string_view whole, fraction;
    friend std::strong_ordering operator<=>(const Number& a, const Number& b) {
        if (a.whole.size() != b.whole.size()) return a.whole.size() <=> b.whole.size();
        const auto order = a.whole.compare(b.whole) <=> 0;
        return order != 0 ? order : a.fraction.compare(b.fraction) <=> 0;
    }
};

/// A text that is read from its front.
struct Rest {
    std::string_view text;
    std::size_t at = 0;

    [[nodiscard]] bool isEmpty() const { return at >= text.size(); }
    [[nodiscard]] char front() const { return text[at]; }
    [[nodiscard]] bool isNumber() const { return !isEmpty() && isDigit(front()); }
    [[nodiscard]] bool isFractionAt(std::size_t place) const {
        return place + 1 < text.size() && isPoint(text[place]) && isDigit(text[place + 1]);
    }
    std::string_view takeDigits() {
        const std::size_t begin = at;
        while (isNumber()) ++at;
        return text.substr(begin, at - begin);
    }
    /// "l", "bar" and the like, perhaps behind a blank.
    [[nodiscard]] bool isUnitAt(std::size_t place) const {
        constexpr std::size_t longest = 3;
        if (place < text.size() && text[place] == ' ') ++place;
        const std::size_t begin = place;
        while (place < text.size() && isLetter(text[place])) ++place;
        return place > begin && place - begin <= longest;
    }
    /// "0,5" is decimal, and so is "0.5 l"; "1.5" may be a chapter, "1,2,3" a list, and "DB10,2" names a place.
    [[nodiscard]] Number takeNumber() {
        const char before = at == 0 ? ' ' : text[at - 1];
        Number number{takeDigits(), {}};
        number.whole.remove_prefix(std::min(number.whole.find_first_not_of('0'), number.whole.size()));
        if (!isFractionAt(at) || isLetter(before) || isPoint(before)) return number;
        Rest behind{text, at + 1};
        number.fraction = behind.takeDigits();
        const bool decimal = text[at] == ',' || isUnitAt(behind.at);
        if (!decimal || behind.isFractionAt(behind.at)) return {number.whole, {}};
        number.fraction = number.fraction.substr(0, number.fraction.find_last_not_of('0') + 1);
        at = behind.at;
        return number;
    }
};

// Where they begin to differ, or before the number in which they do.
std::size_t firstDifference(std::string_view a, std::string_view b) {
    const std::size_t room = std::min(a.size(), b.size());
    const auto differ = std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(room), b.begin()).first;
    auto same = static_cast<std::size_t>(differ - a.begin());
    while (same > 0 && (isDigit(a[same - 1]) || isPoint(a[same - 1]))) --same;
    return same;
}

std::strong_ordering compareForms(std::string_view a, std::string_view b) {
    const std::size_t same = firstDifference(a, b);
    Rest left{a, same}, right{b, same};
    while (!left.isEmpty() && !right.isEmpty()) {
        if (left.isNumber() && right.isNumber()) {
            const Number leftNumber = left.takeNumber(), rightNumber = right.takeNumber();
            if (const auto order = leftNumber <=> rightNumber; order != 0) return order;
            continue;
        }
        const auto order = static_cast<unsigned char>(left.front()) <=> static_cast<unsigned char>(right.front());
        if (order != 0) return order;
        ++left.at;
        ++right.at;
    }
    return right.isEmpty() <=> left.isEmpty();
}

}  // namespace

OrderedName::OrderedName(std::string_view name) : name_(name), form_(lookUpForm(name)) {}

std::strong_ordering operator<=>(const OrderedName& a, const OrderedName& b) {
    const auto order = compareForms(a.form_, b.form_);
    return order != 0 ? order : a.name_.compare(b.name_) <=> 0;
}

}  // namespace hx::project
