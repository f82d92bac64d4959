// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "support/jet_judge.h"

namespace hx::support {

namespace {

struct Field {
    std::string text;
    bool isQuoted = false;
};
using Row = std::vector<Field>;

// A path of a test's folder holds nothing that a shell takes for anything else.
std::string exported(const std::string& path, const std::string& table) {
    const std::string command = "mdb-export -H -0 NULL -b hex '" + path + "' " + table + " 2>&1";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
    std::string text;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe.get())) text.append(part.data(), size);
    return text;
}

std::vector<Row> rowsOf(const std::string& csv) {
    std::vector<Row> rows;
    Row row;
    Field field;
    bool inside = false;
    for (std::size_t i = 0; i < csv.size(); ++i) {
        const char c = csv[i];
        if (inside && c == '"' && i + 1 < csv.size() && csv[i + 1] == '"') field.text += csv[++i];
        else if (c == '"') {
            inside = !inside;
            field.isQuoted = true;
        } else if (inside || (c != ',' && c != '\n')) {
            field.text += c;
        } else {
            row.push_back(std::exchange(field, {}));
            if (c == '\n') rows.push_back(std::exchange(row, {}));
        }
    }
    return rows;
}

// Of a character that takes two places in the file the mdbtools make two question marks.
std::string asExported(std::string_view text) {
    constexpr unsigned char fourBytes = 0xF0;
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isLong = static_cast<unsigned char>(text[i]) >= fourBytes;
        if (isLong) result += "??";
        else result += text[i];
        i += isLong ? 3 : 0;
    }
    return result;
}

bool isSame(const ado::StoredValue& value, const Field& field, ado::DataType type) {
    using Kind = ado::StoredValue::Kind;
    // The mdbtools take an empty text for none.
    const bool isNone = value.kind == Kind::null || (value.kind == Kind::text && value.text.empty());
    if (isNone) return !field.isQuoted && field.text == "NULL";
    if (type == ado::adBoolean) return field.text == (value.isTrue() ? "1" : "0");
    if (!value.isNumber()) return field.isQuoted && field.text == asExported(value.text);
    constexpr double digits = 1e-14;  // they write fifteen
    const double theirs = std::strtod(field.text.c_str(), nullptr);
    return !field.isQuoted && std::abs(theirs - value.real) <= digits * std::abs(value.real);
}

// Of dates and bytes, which are in no other columns, the mdbtools write less than there is.
bool isHosts(const ado::Column& column) { return column.name.starts_with("Host"); }

std::string difference(ado::Session& session, const std::string& path, const std::string& table) {
    std::vector<Row> theirs = rowsOf(exported(path, table));
    const auto rows = session.open("SELECT * FROM " + table + " ORDER BY ID", ado::adCmdText);
    const std::vector<ado::Column>& columns = rows->columns();
    const auto id = static_cast<std::size_t>(std::ranges::find(columns, "ID", &ado::Column::name) - columns.begin());
    std::ranges::sort(theirs, {},
                      [&](const Row& row) { return id < row.size() ? std::atoll(row[id].text.c_str()) : 0; });
    std::string found;
    std::size_t count = 0;
    rows->scan(ado::allColumns(*rows), [&](std::span<const ado::StoredValue> row) {
        const std::size_t at = count++;
        if (!found.empty() || at >= theirs.size()) return;
        if (theirs[at].size() != row.size()) found = table + ": row " + std::to_string(at) + " has other columns";
        for (std::size_t i = 0; i < row.size() && found.empty(); ++i) {
            if (isHosts(columns[i]) || isSame(row[i], theirs[at][i], columns[i].type)) continue;
            found = table + "." + columns[i].name + ", row " + std::to_string(at) + ": \"" + std::string(row[i].text) +
                    "\" or " + std::to_string(row[i].real) + ", mdb-export says \"" + theirs[at][i].text + "\"";
        }
    });
    if (!found.empty() || count == theirs.size()) return found;
    return table + ": " + std::to_string(count) + " rows, mdb-export has " + std::to_string(theirs.size());
}

}  // namespace

std::string differenceFromMdbExport(ado::Provider& provider, const std::string& path) {
    const auto session = provider.connect("Data Source=\"" + path + "\";Mode=Read;");
    std::string found = difference(*session, path, "TrcpRecipe");
    return found.empty() ? difference(*session, path, "TrcpRecipeMember") : found;
}

}  // namespace hx::support
