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

// The digits at the front without leading zeros; `text` is moved behind them.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

std::strong_ordering compareNumbers(std::string_view a, std::string_view b) {
    return a.size() != b.size() ? a.size() <=> b.size() : a.compare(b) <=> 0;
}

// Moves both to where they begin to differ, or to the number in which they do.
void skipCommon(std::string_view& a, std::string_view& b) {
    const auto differ = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    auto same = static_cast<std::size_t>(differ - a.begin());
    while (same > 0 && isDigit(a[same - 1])) --same;
    a.remove_prefix(same);
    b.remove_prefix(same);
}

std::strong_ordering compareForms(std::string_view a, std::string_view b) {
    skipCommon(a, b);
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            if (const auto order = compareNumbers(takeNumber(a), takeNumber(b)); order != 0) return order;
            continue;
        }
        const auto order = static_cast<unsigned char>(a.front()) <=> static_cast<unsigned char>(b.front());
        if (order != 0) return order;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return a.size() <=> b.size();
}

}  // namespace

OrderedName::OrderedName(std::string_view name) : name_(name), form_(lookUpForm(name)) {}

std::strong_ordering operator<=>(const OrderedName& a, const OrderedName& b) {
    const auto order = compareForms(a.form_, b.form_);
    return order != 0 ? order : a.name_.compare(b.name_) <=> 0;
}

}  // namespace hx::project
