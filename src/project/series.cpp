// SPDX-License-Identifier: MIT
#include "project/series.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "project/sentences.h"

namespace hx::project {

using automation::Error;

namespace {

/// Text with a range in it, "Tank {1..12}"; without one all numbers give the same text.
struct SeriesPattern {
    std::string_view before, after;
    std::int64_t first = 0;
    std::size_t count = 0;
    std::size_t digits = 0;

    [[nodiscard]] std::string at(std::size_t place) const {
        std::string number = std::to_string(first + static_cast<std::int64_t>(place));
        if (number.size() < digits) number.insert(0, digits - number.size(), '0');
        return std::string(before) + number + std::string(after);
    }
};

Error refuse(const automation::Sentence& sentence, std::string_view text, std::size_t wanted = 0) {
    const std::string number = std::to_string(wanted);
    const auto inWords = [&](automation::Language language) {
        return automation::say(language, sentence, {text, number});
    };
    return {automation::errFail, inWords(automation::Language::english), inWords(automation::Language::german)};
}

std::optional<std::int64_t> numberIn(std::string_view digits) {
    std::int64_t number = 0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = problem == std::errc() && end == digits.data() + digits.size();
    constexpr std::int64_t largest = 999'999'999;
    return whole && number >= 0 && number <= largest ? std::optional(number) : std::nullopt;
}

SeriesPattern parse(std::string_view text) {
    const std::size_t open = text.find('{');
    const std::size_t dots = open == std::string_view::npos ? open : text.find("..", open);
    const std::size_t close = dots == std::string_view::npos ? dots : text.find('}', dots);
    if (close == std::string_view::npos) return {text, {}};
    const std::string_view from = text.substr(open + 1, dots - open - 1);
    const auto first = numberIn(from), last = numberIn(text.substr(dots + 2, close - dots - 2));
    if (!first || !last || *last < *first) throw refuse(sentence::noRange, text);
    const auto count = static_cast<std::size_t>(*last - *first) + 1;
    return {text.substr(0, open), text.substr(close + 1), *first, count, from.starts_with('0') ? from.size() : 0};
}

}  // namespace

std::vector<NewRecipe> expandSeries(std::string_view name, std::span<const std::string> variables) {
    const SeriesPattern names = parse(name);
    if (names.count == 0) throw refuse(sentence::noRange, name);
    if (names.count > longestSeries) throw refuse(sentence::seriesTooLong, name, longestSeries);
    std::vector<SeriesPattern> patterns;
    for (const std::string& variable : variables) {
        patterns.push_back(parse(variable));
        if (patterns.back().count != 0 && patterns.back().count != names.count)
            throw refuse(sentence::otherRange, variable, names.count);
    }
    std::vector<NewRecipe> recipes(names.count);
    for (std::size_t i = 0; i < recipes.size(); ++i) {
        recipes[i].name = names.at(i);
        for (const SeriesPattern& pattern : patterns)
            recipes[i].variables.push_back(pattern.count == 0 ? std::string(pattern.before) : pattern.at(i));
    }
    return recipes;
}

}  // namespace hx::project
