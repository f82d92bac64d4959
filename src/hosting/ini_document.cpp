// SPDX-License-Identifier: MIT
#include "hosting/ini_document.h"

#include "automation/error.h"
#include "automation/text.h"
#include "automation/utf8.h"
#include "hosting/sentences.h"

namespace hx::hosting {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view newFileLineEnd = "\r\n";

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Between "[" and the last "]"; nothing when the line is no section line.
std::optional<std::string_view> sectionOf(std::string_view line) {
    const std::string_view text = withoutBlanks(line);
    const auto end = text.rfind(']');
    if (text.empty() || text.front() != '[' || end == std::string_view::npos) return std::nullopt;
    return withoutBlanks(text.substr(1, end - 1));
}

std::optional<std::string_view> keyOf(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const std::string_view key = withoutBlanks(line.substr(0, equals));
    if (!key.empty() && key.front() == ';') return std::nullopt;
    return key;
}

bool inOneLine(std::string_view text) { return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos; }

void require(bool holds, const automation::Sentence& otherwise, std::string_view name = {}) {
    if (!holds) throw automation::Error(automation::errFail, otherwise, {name});
}

// Whether a line that begins so is read again as this key.
bool isKey(std::string_view key) {
    const std::string line = std::string(key) + "=";
    const std::string_view name = withoutBlanks(key);
    return inOneLine(key) && !name.empty() && name.front() != '[' && keyOf(line) == name;
}

}  // namespace

IniDocument::IniDocument(std::string_view bytes) {
    utf16_ = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    if (bytes.starts_with(utf8Mark)) {
        mark_ = utf8Mark;
        bytes.remove_prefix(utf8Mark.size());
    }
    while (!bytes.empty()) {
        const auto newline = bytes.find('\n');
        std::string_view line = bytes.substr(0, newline);
        const std::size_t carriageReturn = newline != bytes.npos && line.ends_with('\r') ? 1 : 0;
        line.remove_suffix(carriageReturn);
        const std::size_t size = newline == bytes.npos ? bytes.size() : newline + 1;
        lines_.push_back({std::string(line), std::string(bytes.substr(line.size(), size - line.size()))});
        bytes.remove_prefix(size);
    }
}

std::optional<std::string> IniDocument::text(std::string_view section, std::string_view key) const {
    const Place place = find(section, key);
    if (!place.line) return std::nullopt;
    const std::string& line = lines_[*place.line].text;
    const std::string text = line.substr(line.find('=') + 1);
    return automation::isUtf8(text) ? text : automation::fromWindows1252(text);
}

void IniDocument::setText(std::string_view section, std::string_view key, std::string_view text) {
    require(!utf16_, sentence::otherEncoding);
    require(inOneLine(section), sentence::badSection, section);
    require(isKey(key), sentence::badKey, key);
    require(inOneLine(text), sentence::badText, key);

    std::string line = std::string(key) + "=" + std::string(text);
    const Place place = find(section, key);
    if (place.line) {
        lines_[*place.line].text = std::move(line);
    } else if (place.behind) {
        insert(*place.behind, std::move(line));
    } else {
        insert(lines_.size(), "[" + std::string(section) + "]");
        insert(lines_.size(), std::move(line));
    }
}

std::optional<automation::Error> IniDocument::setTexts(std::string_view section, std::span<const host::IniText> texts) {
    std::optional<automation::Error> refused;
    for (const auto& [key, text] : texts) {
        try {
            setText(section, key, text);
        } catch (const automation::Error& error) {
            if (!refused) refused = error;
        }
    }
    return refused;
}

IniDocument::Place IniDocument::find(std::string_view section, std::string_view key) const {
    Place place;
    const std::string_view wantedSection = withoutBlanks(section);
    const std::string_view wantedKey = withoutBlanks(key);
    bool inside = false;
    bool firstOfItsName = false;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const std::string& line = lines_[i].text;
        if (const auto name = sectionOf(line)) {
            inside = automation::equalIgnoreCase(*name, wantedSection);
            firstOfItsName = inside && !place.behind;
            if (firstOfItsName) place.behind = i + 1;
            continue;
        }
        if (!inside) continue;
        const auto name = keyOf(line);
        if (name && automation::equalIgnoreCase(*name, wantedKey)) {
            place.line = i;
            return place;
        }
        // Blank lines at the end of a section set off the next one: a new key goes before them.
        if (firstOfItsName && !withoutBlanks(line).empty()) place.behind = i + 1;
    }
    return place;
}

void IniDocument::insert(std::size_t at, std::string text) {
    const std::string end = lineEnd();
    if (at > 0 && lines_[at - 1].end.empty()) lines_[at - 1].end = end;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), Line{std::move(text), end});
}

std::string IniDocument::lineEnd() const {
    return lines_.empty() || lines_.front().end.empty() ? std::string(newFileLineEnd) : lines_.front().end;
}

std::string IniDocument::bytes() const {
    std::string all = mark_;
    for (const Line& line : lines_) all += line.text + line.end;
    return all;
}

}  // namespace hx::hosting
