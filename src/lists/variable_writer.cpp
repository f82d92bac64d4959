// SPDX-License-Identifier: MIT
#include "lists/variable_writer.h"

#include <algorithm>
#include <array>
#include <limits>

#include "automation/text.h"
#include "hosting/in_file.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "lists/sentences.h"
#include "project/schema.h"

namespace hx::lists {

using Kind = VariableChange::Kind;

namespace {

namespace variable_column = project::schema::variable;
constexpr auto table = project::schema::variableTable;

std::unique_ptr<ado::Rowset> openList(ado::Session& session, const std::string& project) {
    try {
        return session.open(table, ado::adCmdTable);
    } catch (const automation::Error& error) {
        if (error.number() != ado::dbErrNoTable) throw;
        throw automation::Error(automation::errFail, sentence::noTable, {table, project});
    }
}

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
// Texts of several lines are comments too.
bool isControlButBreak(char c) { return isControl(c) && c != '\t' && c != '\r' && c != '\n'; }

bool isLongerThan(std::string_view text, std::size_t limit) {
    return text.size() > limit && automation::characterCount(text) > limit;
}

}  // namespace

VariableWriter::VariableWriter(ado::Session& session, const std::string& project, std::string file, Mode mode)
    : rows_(openList(session, project)), file_(std::move(file)), mode_(mode) {
    hosting::inFile(project, [this] {
        name_ = columnOf(variable_column::name);
        type_ = columnOf(variable_column::type);
        comment_ = columnOf(variable_column::comment);
    });
    limits_ = limitsOf();
    readKnown();
}

std::size_t VariableWriter::columnOf(std::string_view name) const {
    const auto named = [&](const ado::Column& column) { return automation::equalIgnoreCase(column.name, name); };
    const auto found = std::ranges::find_if(rows_->columns(), named);
    if (found != rows_->columns().end()) return static_cast<std::size_t>(found - rows_->columns().begin());
    throw automation::Error(ado::dbErrBadCommand, sentence::noColumn, {table, name});
}

VariableLimits VariableWriter::limitsOf() const {
    const auto limit = [this](std::size_t column) {
        const auto size = rows_->columns()[column].definedSize;
        return size > 0 ? static_cast<std::size_t>(size) : std::numeric_limits<std::size_t>::max();
    };
    return {limit(name_), limit(type_), limit(comment_)};
}

// By the rows' keys, which are not the IDs where the table's key is another column.
void VariableWriter::readKnown() {
    struct Names : ado::RowSink {
        explicit Names(VariableWriter& to) : writer(to) {}
        void row(std::size_t index, std::span<automation::Variant> values) override {
            const ado::StoredValue name = ado::storedValue(values[writer.name_]);
            writer.known_.emplace(writer.hashOf(ado::shownText(name, room)), Entry{keys[index], 0});
        }
        VariableWriter& writer;
        std::vector<ado::Key> keys;
        std::string room;
    };
    const ado::RowKeys all = rows_->keys(nullptr);
    known_.reserve(all.size());
    Names names(*this);
    for (std::size_t at = 0; at < all.size(); at += names.keys.size()) {
        names.keys.resize(std::min(ado::rowsReadTogether, all.size() - at));
        for (std::size_t i = 0; i < names.keys.size(); ++i) names.keys[i] = all[at + i];
        rows_->read(names.keys, ado::columnBit(name_), names);
    }
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
        const Row row = read(at->second.key);
        if (automation::equalIgnoreCase(row.name, variable.name)) return takeKnown(at->second, row, variable);
    }
    insert(hash, variable);
    return {Kind::added, {}, {}, {}};
}

void VariableWriter::check(const ListedVariable& variable) const {
    const hosting::Line line{file_, variable.line, {}};
    const auto field = [&](const char* title, const std::string& text, std::size_t limit, auto isForbidden) {
        if (std::ranges::any_of(text, isForbidden)) {
            line.fail(sentence::controlCharacters, {hosting::inQuotes(title), hosting::inQuotes(text)});
        }
        if (isLongerThan(text, limit)) {
            line.fail(sentence::tooLong, {hosting::inQuotes(title), hosting::inQuotes(text), std::to_string(limit)});
        }
    };
    if (variable.name.empty()) line.fail(sentence::noName);
    field("Name", variable.name, limits_.name, isControl);
    if (variable.type) field("Type", *variable.type, limits_.type, isControl);
    if (variable.comment) field("Comment", *variable.comment, limits_.comment, isControlButBreak);
}

std::size_t VariableWriter::hashOf(std::string_view name) {
    folded_.clear();
    automation::appendFolded(folded_, name);
    return std::hash<std::string>()(folded_);
}

VariableWriter::Row VariableWriter::read(ado::Key key) {
    if (const auto practised = practised_.find(key); practised != practised_.end()) return practised->second;
    Row found;
    rows_->readStored({&key, 1}, [&](std::span<const ado::StoredValue> row) {
        const auto text = [&](std::size_t column) {
            std::string room;
            return std::string(ado::shownText(row[column], room));
        };
        found = {text(name_), text(type_), text(comment_)};
    });
    return found;
}

VariableChange VariableWriter::takeKnown(Entry& entry, const Row& row, const ListedVariable& variable) {
    const bool differs =
        variable.type.value_or(row.type) != row.type || variable.comment.value_or(row.comment) != row.comment;
    if (entry.line != 0 && differs) {
        hosting::Line{file_, variable.line, {}}.fail(sentence::givenTwice,
                                                     {hosting::inQuotes(variable.name), std::to_string(entry.line)});
    }
    if (entry.line != 0) return {Kind::repeated, {}, {}, {}};
    entry.line = variable.line;
    if (differs) update(entry.key, row, variable);
    return {differs ? Kind::changed : Kind::unchanged, row.name, row.type, row.comment};
}

void VariableWriter::update(ado::Key key, const Row& row, const ListedVariable& variable) {
    const std::string type = variable.type.value_or(row.type);
    const std::string comment = variable.comment.value_or(row.comment);
    if (mode_ == Mode::practise) practised_[key] = {row.name, type, comment};
    else rows_->update(key, std::array<ado::ColumnValue, 2>{{{type_, type}, {comment_, comment}}}, {});
}

void VariableWriter::insert(std::size_t hash, const ListedVariable& variable) {
    const std::string type = variable.type.value_or("");
    const std::string comment = variable.comment.value_or("");
    ado::Key key = -1 - static_cast<ado::Key>(practised_.size());
    if (mode_ == Mode::practise) practised_[key] = {variable.name, type, comment};
    else
        key = rows_->insert(
            std::array<ado::ColumnValue, 3>{{{name_, variable.name}, {type_, type}, {comment_, comment}}});
    known_.emplace(hash, Entry{key, variable.line});
}

}  // namespace hx::lists
