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

namespace hx::lists {

using automation::equalIgnoreCase;

namespace {

constexpr std::size_t sampleRecords = 50;

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

std::size_t headingCount(const SampleRecord& record) {
    return static_cast<std::size_t>(
        std::ranges::count_if(record.fields, [](const std::string& field) { return columnOf(field).has_value(); }));
}

// What is wrong in the sample is told when the list is read.
std::vector<SampleRecord> recordsOf(const std::string& path, std::string_view text, bool isWhole, char delimiter) {
    std::vector<SampleRecord> records;
    CsvParser parser(path, delimiter, [&](const CsvRecord& record) {
        if (records.empty() && record.fields[0] == separatorMark) return;
        if (records.size() == sampleRecords) return;
        records.push_back({{record.fields.begin(), record.fields.end()}, record.line});
    });
    try {
        parser.feed(text);
        if (isWhole) parser.finish();
    } catch (const automation::Error&) {
    }
    return records;
}

// An index of several dimensions has commas: Name[1,2].
bool cutsAnIndex(const std::string& field) { return std::ranges::count(field, '[') != std::ranges::count(field, ']'); }

struct Candidate {
    char delimiter;
    std::vector<SampleRecord> records;
    std::size_t headings = 0;  // of the first record
    std::size_t even = 0;      // records with as many fields as the first one
    std::size_t fields = 0;

    Candidate(const std::string& path, std::string_view text, bool isWhole, char sign)
        : delimiter(sign), records(recordsOf(path, text, isWhole, sign)) {
        if (records.empty() || records.front().fields.size() < 2) return;
        headings = headingCount(records.front());
        fields = records.front().fields.size();
        for (const SampleRecord& record : records) {
            if (record.fields.size() == fields && std::ranges::none_of(record.fields, cutsAnIndex)) ++even;
        }
        if (even * 2 < records.size()) even = 0;
    }
    [[nodiscard]] auto merit() const { return std::tuple(headings, even, even == 0 ? 0 : fields); }
};

void takeHeader(CsvLayout& layout, const std::string& path, const SampleRecord& header) {
    const hosting::Line line{path, header.line, {}};
    layout.hasHeader = true;
    layout.columns = header.fields.size();
    std::array<std::optional<std::size_t>, 3> places;
    for (std::size_t i = 0; i < header.fields.size(); ++i) {
        const auto column = columnOf(header.fields[i]);
        if (!column) {
            if (!header.fields[i].empty()) layout.others.push_back(header.fields[i]);
            continue;
        }
        auto& place = places[static_cast<std::size_t>(*column)];
        if (place) {
            line.fail("two columns mean the same: " + hosting::inQuotes(header.fields[*place]) + " and " +
                      hosting::inQuotes(header.fields[i]));
        }
        place = i;
    }
    if (!places[0]) line.fail("no column is headed \"Name\" or \"Variable\"");
    layout.name = *places[0];
    layout.type = places[1];
    layout.comment = places[2];
}

// A variable may be called like a heading; a line of such words alone, or of two of them, is a header.
bool isHeader(const SampleRecord& record) {
    const std::size_t known = headingCount(record);
    return known >= 2 || (known == 1 && record.fields.size() == 1 && columnOf(record.fields[0]) == Column::name);
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
    if (!best.records.empty() && isHeader(best.records.front())) takeHeader(layout, path, best.records.front());
    return layout;
}

}  // namespace hx::lists
