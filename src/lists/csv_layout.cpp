// SPDX-License-Identifier: MIT
#include "lists/csv_layout.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "automation/error.h"
#include "automation/text.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "lists/csv_parser.h"
#include "lists/sentences.h"

namespace hx::lists {

using automation::equalIgnoreCase;

namespace {

constexpr std::size_t sampleRecords = 50, linesToLookAt = 200;

enum class Column { name, type, comment };

struct Heading {
    std::string_view text;
    Column column;
};

constexpr auto headings = std::to_array<Heading>({
    {"Name", Column::name},
    {"Variable", Column::name},
    {"Variablenname", Column::name},
    {"Variable Name", Column::name},
    {"VariableName", Column::name},
    {"Tag", Column::name},
    {"Tag Name", Column::name},
    {"TagName", Column::name},
    {"Symbol", Column::name},
    {"Bezeichner", Column::name},
    {"Bezeichnung", Column::name},
    {"Type", Column::type},
    {"Typ", Column::type},
    {"Data Type", Column::type},
    {"DataType", Column::type},
    {"Datentyp", Column::type},
    {"Comment", Column::comment},
    {"Kommentar", Column::comment},
    {"Description", Column::comment},
    {"Beschreibung", Column::comment},
    {"Bemerkung", Column::comment},
    {"Remark", Column::comment},
});

std::optional<Column> columnOf(std::string_view heading) {
    const std::string_view text = automation::trim(heading);
    const auto found = std::ranges::find_if(headings, [&](const Heading& h) { return equalIgnoreCase(h.text, text); });
    return found == headings.end() ? std::nullopt : std::optional(found->column);
}

struct SampleRecord {
    std::vector<std::string> fields;
    int line;
};

std::size_t headingCount(const std::vector<std::string>& fields) {
    return static_cast<std::size_t>(
        std::ranges::count_if(fields, [](const std::string& field) { return columnOf(field).has_value(); }));
}

std::size_t filledCount(const std::vector<std::string>& fields) {
    return static_cast<std::size_t>(
        std::ranges::count_if(fields, [](const std::string& field) { return !automation::trim(field).empty(); }));
}

// What is wrong in the sample is told when the list is read.
std::vector<SampleRecord> recordsOf(const std::string& path, std::string_view text, bool isWhole, char delimiter,
                                    int firstLine) {
    std::vector<SampleRecord> records;
    const auto take = [&](const CsvRecord& record) {
        if (records.size() < sampleRecords)
            records.push_back({{record.fields.begin(), record.fields.end()}, record.line});
    };
    CsvParser parser(path, delimiter, take, firstLine);
    try {
        parser.feed(text);
        if (isWhole) parser.finish();
    } catch (const automation::Error&) {
    }
    return records;
}

/// A line of the text, and where it stands.
struct TextLine {
    std::string_view text;
    std::size_t begin;
    int number;
};

std::vector<TextLine> firstLines(std::string_view text) {
    std::vector<TextLine> lines;
    for (std::size_t at = 0; at < text.size() && lines.size() < linesToLookAt;) {
        const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
        lines.push_back({text.substr(at, end - at), at, static_cast<int>(lines.size()) + 1});
        at = end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
    }
    return lines;
}

bool isSeparatorLine(const TextLine& line) {
    return line.number == 1 && line.text.starts_with(separatorMark) && line.text.size() <= separatorMark.size() + 1;
}

// A variable may be called like a heading; a line of such words alone, or of two of them, is a header.
bool isHeader(const std::vector<std::string>& fields) {
    const std::size_t known = headingCount(fields);
    return known >= 2 || (known == 1 && fields.size() == 1 && columnOf(fields[0]) == Column::name);
}

// Behind other lines there must be no doubt: those may be variables, and this one's name a heading's.
bool isRemark(const TextLine& line, char delimiter, const std::vector<std::string>& header) {
    constexpr auto signs = std::to_array<std::string_view>({"#", "//", "--", "'", "*", "!", "remark", ";"});
    const bool isSigned = std::ranges::any_of(
        signs, [&](std::string_view sign) { return (sign.front() != delimiter) && line.text.starts_with(sign); });
    if (isSigned) return true;
    const std::vector<std::string> fields = automation::split(line.text, delimiter);
    return filledCount(fields) < filledCount(header) || (headingCount(header) >= 3 && fields.size() != header.size());
}

bool isLaterHeader(const std::vector<std::string>& fields) {
    const auto isName = [](const std::string& field) { return columnOf(field) == Column::name; };
    return headingCount(fields) >= 2 && std::ranges::any_of(fields, isName);
}

// An index of several dimensions has commas: Name[1,2].
bool cutsAnIndex(const std::string& field) { return std::ranges::count(field, '[') != std::ranges::count(field, ']'); }

struct Candidate {
    char delimiter;
    std::vector<SampleRecord> records;  // from the header on
    int remarks = 0;
    std::size_t begin = 0;
    int line = 1;
    std::size_t headings = 0;  // of the header, or of the first record
    std::size_t even = 0;      // records with as many fields as the first one
    std::size_t fields = 0;

    Candidate(const std::string& path, std::string_view text, bool isWhole, char sign) : delimiter(sign) {
        findBegin(path, firstLines(text));
        records = recordsOf(path, text.substr(begin), isWhole, sign, line);
        if (records.empty() || records.front().fields.size() < 2) return;
        headings = headingCount(records.front().fields);
        fields = records.front().fields.size();
        for (const SampleRecord& record : records) {
            if (record.fields.size() == fields && std::ranges::none_of(record.fields, cutsAnIndex)) ++even;
        }
        if (even * 2 < records.size()) even = 0;
    }
    [[nodiscard]] auto merit() const { return std::tuple(headings, even, even == 0 ? 0 : fields); }

  private:
    // At the header, wherever it stands; else at the first line.
    void findBegin(const std::string& path, const std::vector<TextLine>& lines) {
        std::vector<const TextLine*> before;
        for (const TextLine& at : lines) {
            if (isSeparatorLine(at)) {
                startAt(lines, at.number);
                continue;
            }
            if (automation::trim(at.text).empty()) continue;
            const auto found = recordsOf(path, at.text, true, delimiter, at.number);
            const std::vector<std::string> header = found.empty() ? std::vector<std::string>() : found.front().fields;
            const bool isHere = before.empty() ? isHeader(header) : isLaterHeader(header);
            if (isHere && std::ranges::all_of(
                              before, [&](const TextLine* remark) { return isRemark(*remark, delimiter, header); })) {
                remarks = static_cast<int>(before.size());
                return startAt(lines, at.number - 1);
            }
            before.push_back(&at);
        }
    }
    void startAt(const std::vector<TextLine>& lines, int number) {
        const auto at = static_cast<std::size_t>(number);
        line = number + 1;
        begin = at < lines.size() ? lines[at].begin : lines.back().begin + lines.back().text.size();
    }
};

// Where another column says the type of the data, a first one of types tells what the record is.
bool isKind(const std::vector<std::string>& titles) {
    return columnOf(titles.front()) == Column::type &&
           std::ranges::count_if(titles, [](const std::string& title) { return columnOf(title) == Column::type; }) == 2;
}

void takeHeader(CsvLayout& layout, std::vector<std::string> titles) {
    layout.columns = titles.size();
    if (isKind(titles)) layout.kind = 0;
    std::array<std::optional<std::size_t>, 3> places;
    for (std::size_t i = layout.kind ? 1 : 0; i < titles.size(); ++i) {
        const auto column = columnOf(titles[i]);
        if (!column) continue;
        auto& place = places[static_cast<std::size_t>(*column)];
        if (place && !layout.same) layout.same = {*place, i};
        if (!place) place = i;
    }
    const auto isScope = [](const std::string& title) { return equalIgnoreCase(automation::trim(title), "Scope"); };
    if (const auto scope = std::ranges::find_if(titles, isScope); layout.kind && scope != titles.end())
        layout.scope = static_cast<std::size_t>(scope - titles.begin());
    layout.name = places[0];
    layout.type = places[1];
    layout.comment = places[2];
    layout.titles = std::move(titles);
}

}  // namespace

CsvLayout recogniseLayout(const std::string& path, std::string_view beginning, bool isWhole) {
    constexpr std::string_view delimiters = ";\t|,";
    std::string_view candidates = delimiters;
    if (beginning.starts_with(separatorMark) && beginning.size() > separatorMark.size() &&
        delimiters.find(beginning[separatorMark.size()]) != std::string_view::npos) {
        candidates = beginning.substr(separatorMark.size(), 1);
    }
    Candidate best(path, beginning, isWhole, candidates.front());
    for (const char sign : candidates.substr(1)) {
        Candidate other(path, beginning, isWhole, sign);
        if (other.merit() > best.merit()) best = std::move(other);
    }
    CsvLayout layout;
    layout.delimiter = best.delimiter;
    layout.line = best.line;
    layout.begin = best.begin;
    layout.remarks = best.remarks;
    const bool hasHeader = !best.records.empty() && isHeader(best.records.front().fields);
    if (hasHeader) takeHeader(layout, best.records.front().fields);
    for (std::size_t i = hasHeader ? 1 : 0; i < best.records.size(); ++i)
        layout.sample.push_back(std::move(best.records[i].fields));
    return layout;
}

void requireColumns(const CsvLayout& layout, const std::string& path) {
    const hosting::Line line{path, layout.line, {}};
    if (layout.same) {
        const auto& [first, second] = *layout.same;
        line.fail(sentence::sameMeaning,
                  {hosting::inQuotes(layout.titles[first]), hosting::inQuotes(layout.titles[second])});
    }
    if (!layout.name) line.fail(sentence::noNameColumn);
}

}  // namespace hx::lists
