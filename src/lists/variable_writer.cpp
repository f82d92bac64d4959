// SPDX-License-Identifier: MIT
#include "lists/variable_writer.h"

#include <algorithm>
#include <limits>

#include "adapters/sqlite/table_info.h"
#include "automation/text.h"
#include "hosting/in_file.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::lists {

using automation::Variant;
using sqlite::ResetGuard;
using sqlite::Statement;
using Kind = VariableChange::Kind;

namespace {

namespace variable_column = project::schema::variable;
constexpr auto table = project::schema::variableTable;

VariableLimits limitsOf(sqlite::Database& database) {
    const auto info = sqlite::TableInfo::read(database, table);
    if (!info) {
        throw automation::Error(automation::errFail,
                                "There is no table \"" + std::string(table) + "\" in " + database.path());
    }
    const auto limit = [&](std::string_view column) {
        const auto size = info->columns[info->requireColumn(column)].definedSize;
        return size > 0 ? static_cast<std::size_t>(size) : std::numeric_limits<std::size_t>::max();
    };
    return {limit(variable_column::name), limit(variable_column::type), limit(variable_column::comment)};
}

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
// Texts of several lines are comments too.
bool isControlButBreak(char c) { return isControl(c) && c != '\t' && c != '\r' && c != '\n'; }

bool isLongerThan(std::string_view text, std::size_t limit) {
    return text.size() > limit && automation::characterCount(text) > limit;
}

}  // namespace

VariableWriter::VariableWriter(sqlite::Database& database, std::string file)
    : database_(database),
      file_(std::move(file)),
      limits_(hosting::inFile(database.path(), [&] { return limitsOf(database); })) {
    known_.reserve(static_cast<std::size_t>(database_.number("SELECT count(*) FROM ThxVariable")));
    Statement rows(database_, "SELECT ID, Name FROM ThxVariable");
    while (rows.step()) known_.emplace(hashOf(rows.text(1)), Entry{rows.key(0), 0});
}

// Tables of the connection hide those of the file.
void VariableWriter::practise() {
    database_.execute(
        "CREATE TEMP TABLE ThxVariable (ID INTEGER PRIMARY KEY, Name TEXT, Type TEXT, Comment TEXT);"
        "INSERT INTO temp.ThxVariable SELECT ID, Name, Type, Comment FROM main.ThxVariable;");
}

VariableChange VariableWriter::take(const ListedVariable& variable) {
    check(variable);
    try {
        return write(variable);
    } catch (const automation::Error& error) {
        // A row that the table refuses; anything else is wrong with the project's file.
        if (error.number() != ado::dbErrDuplicate && error.number() != ado::dbErrIntegrity) throw;
        hosting::Line{file_, variable.line, {}}.fail(error.description());
    }
}

VariableChange VariableWriter::write(const ListedVariable& variable) {
    const std::size_t hash = hashOf(variable.name);
    const auto [first, last] = known_.equal_range(hash);
    for (auto at = first; at != last; ++at) {
        const Row row = read(at->second.id);
        if (automation::equalIgnoreCase(row.name, variable.name)) return takeKnown(at->second, row, variable);
    }
    insert(hash, variable);
    return {Kind::added, {}, {}, {}};
}

void VariableWriter::check(const ListedVariable& variable) const {
    const hosting::Line line{file_, variable.line, {}};
    const auto field = [&](const char* title, const std::string& text, std::size_t limit, auto isForbidden) {
        if (std::ranges::any_of(text, isForbidden)) {
            line.fail(hosting::inQuotes(title) + ": " + hosting::inQuotes(text) + " has control characters");
        }
        if (isLongerThan(text, limit)) {
            line.fail(hosting::inQuotes(title) + ": " + hosting::inQuotes(text) + " is longer than " +
                      std::to_string(limit) + " characters");
        }
    };
    if (variable.name.empty()) line.fail("\"Name\": a name is missing");
    field("Name", variable.name, limits_.name, isControl);
    if (variable.type) field("Type", *variable.type, limits_.type, isControl);
    if (variable.comment) field("Comment", *variable.comment, limits_.comment, isControlButBreak);
}

std::size_t VariableWriter::hashOf(std::string_view name) {
    folded_.clear();
    automation::appendFolded(folded_, name);
    return std::hash<std::string>()(folded_);
}

VariableWriter::Row VariableWriter::read(std::int64_t id) {
    Statement& select = database_.prepared("SELECT Name, Type, Comment FROM ThxVariable WHERE ID = ?1");
    const ResetGuard guard(select);
    select.bind(1, id);
    select.step();
    return {select.text(0), select.text(1), select.text(2)};
}

VariableChange VariableWriter::takeKnown(Entry& entry, const Row& row, const ListedVariable& variable) {
    const bool differs =
        variable.type.value_or(row.type) != row.type || variable.comment.value_or(row.comment) != row.comment;
    if (entry.line != 0 && differs) {
        hosting::Line{file_, variable.line, {}}.fail("\"Name\": " + hosting::inQuotes(variable.name) + " is on line " +
                                                     std::to_string(entry.line) + " too, with another type or comment");
    }
    if (entry.line != 0) return {Kind::repeated, {}, {}, {}};
    entry.line = variable.line;
    if (differs) update(entry.id, row, variable);
    return {differs ? Kind::changed : Kind::unchanged, row.name, row.type, row.comment};
}

void VariableWriter::update(std::int64_t id, const Row& row, const ListedVariable& variable) {
    Statement& change = database_.prepared("UPDATE ThxVariable SET Type = ?2, Comment = ?3 WHERE ID = ?1");
    const ResetGuard guard(change);
    change.bind(1, id);
    change.bind(2, Variant(variable.type.value_or(row.type)));
    change.bind(3, Variant(variable.comment.value_or(row.comment)));
    change.step();
}

void VariableWriter::insert(std::size_t hash, const ListedVariable& variable) {
    Statement& add = database_.prepared("INSERT INTO ThxVariable (Name, Type, Comment) VALUES (?1, ?2, ?3)");
    const ResetGuard guard(add);
    add.bind(1, Variant(variable.name));
    add.bind(2, Variant(variable.type.value_or("")));
    add.bind(3, Variant(variable.comment.value_or("")));
    add.step();
    known_.emplace(hash, Entry{database_.lastInsertedKey(), variable.line});
}

}  // namespace hx::lists
