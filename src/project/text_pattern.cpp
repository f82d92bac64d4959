// SPDX-License-Identifier: MIT
#include "project/text_pattern.h"

#include "automation/text.h"
#include "automation/utf8.h"

namespace hx::project {

namespace {

// Letters beyond ASCII take bytes beyond it.
bool belongsToWord(char c) {
    const auto byte = static_cast<unsigned char>(c);
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return letter || (byte >= '0' && byte <= '9') || byte == '_' || byte >= 0x80;
}

// Where the character stands in a text that stands at `place` in the text without case: few change their length.
std::size_t unfolded(std::string_view text, std::size_t place) {
    std::size_t at = 0;
    for (std::size_t folded = 0; folded < place && at < text.size();) {
        const std::size_t size = std::max<std::size_t>(1, automation::decodeUtf8(text, at).length);
        folded += automation::foldCase(text.substr(at, size)).size();
        at += size;
    }
    return at;
}

}  // namespace

PlainPattern::PlainPattern(std::string text, bool matchCase, bool wholeWord)
    : text_(matchCase ? std::move(text) : automation::foldCase(text)), matchCase_(matchCase), wholeWord_(wholeWord) {}

std::string_view PlainPattern::searched(std::string_view text) {
    if (matchCase_) return text;
    folded_.clear();
    automation::appendFolded(folded_, text);
    return folded_;
}

bool PlainPattern::isWhole(std::string_view text, Place place) const {
    const bool before = place.at > 0 && belongsToWord(text[place.at - 1]);
    const bool behind = place.end < text.size() && belongsToWord(text[place.end]);
    return !before && !behind;
}

std::optional<PlainPattern::Place> PlainPattern::find(std::string_view text, std::size_t from) const {
    for (std::size_t at = from; !text_.empty() && (at = text.find(text_, at)) != std::string_view::npos; ++at) {
        const Place place{at, at + text_.size()};
        if (!wholeWord_ || isWhole(text, place)) return place;
    }
    return std::nullopt;
}

bool PlainPattern::isIn(std::string_view text) { return find(searched(text), 0).has_value(); }

std::string PlainPattern::replaced(std::string_view text, const std::string& with) {
    const std::string_view where = searched(text);
    const bool sameSize = where.size() == text.size();
    const auto placeOf = [&](std::size_t at) { return sameSize ? at : unfolded(text, at); };
    std::string result;
    std::size_t done = 0;
    for (auto place = find(where, 0); place; place = find(where, place->end)) {
        const std::size_t at = placeOf(place->at);
        result.append(text.substr(done, at - done)).append(with);
        done = placeOf(place->end);
    }
    return result.append(text.substr(done));
}

}  // namespace hx::project
