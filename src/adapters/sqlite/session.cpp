// SPDX-License-Identifier: MIT
#include "adapters/sqlite/session.h"

#include <filesystem>
#include <fstream>

#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/project_check.h"
#include "adapters/sqlite/query_rowset.h"
#include "adapters/sqlite/sentences.h"
#include "adapters/sqlite/table_rowset.h"
#include "hosting/file_bytes.h"

namespace hx::sqlite {

namespace {

// Throws before SQLite says less about it.
void requireFile(const std::string& path, automation::Language language) {
    const auto refuse = [&](const automation::Sentence& problem, std::string_view reason = {}) {
        throw automation::Error(ado::dbErrUnspecified, automation::say(language, problem, {path, reason}));
    };
    std::error_code error;
    const std::filesystem::file_status status =
        path.empty() ? std::filesystem::file_status(std::filesystem::file_type::not_found)
                     : std::filesystem::status(hosting::fileSystemPath(path), error);
    if (status.type() == std::filesystem::file_type::not_found) refuse(sentence::missing);
    if (error) refuse(sentence::unreachable, error.message());
    if (std::filesystem::is_directory(status)) refuse(sentence::folder);
    if (!std::filesystem::is_regular_file(status)) refuse(sentence::noFile);
    if (!std::ifstream(hosting::fileSystemPath(path)).is_open()) refuse(sentence::noReadPermission);
}

// Refuses a text with letters beyond ASCII that equals another row's ignoring case; the rest the table's own index
// refuses. Only rows with the same ASCII letters in front are looked at, by way of that index.
std::string uniquenessTrigger(const TableInfo& table, const std::string& column, const std::string& event) {
    const std::string name = quotedName(column);
    const std::string prefix = "hx_prefix(NEW." + name + ")";
    return "CREATE TEMP TRIGGER " + quotedName("hx_unique_" + table.name + "_" + column + event.substr(0, 6)) +
           " BEFORE " + event + " ON main." + quotedName(table.name) + " WHEN " + prefix + " <> NEW." + name +
           " BEGIN SELECT RAISE(ABORT, 'UNIQUE constraint failed: " + table.name + "." + column + "') WHERE EXISTS (" +
           "SELECT 1 FROM main." + quotedName(table.name) + " WHERE " + name + " >= " + prefix + " AND " + name +
           " < " + prefix + " || char(1114111) AND hx_fold(" + name + ") = hx_fold(NEW." + name + ") AND " +
           quotedName(table.key) + " <> NEW." + quotedName(table.key) + "); END;";
}

std::shared_ptr<Writes> writesTo(const std::string& path, bool readOnly, OpenOptions options) {
    requireFile(path, options.language);
    options.readOnly = options.readOnly || readOnly;
    return std::make_shared<Writes>(path, options);
}

}  // namespace

Session::Session(const std::string& path, bool readOnly, const OpenOptions& options)
    : writes_(writesTo(path, readOnly, options)), readOnly_(readOnly) {
    Database& database = writes_->database();
    requireProject(database);
    if (readOnly) {
        database.execute("PRAGMA query_only=ON");
    } else {
        requireUndamaged();
        if (options.comparesNames) compareNamesBeyondAscii();
    }
}

std::optional<std::int64_t> Session::othersChanges() {
    Database& database = writes_->database();
    if (JetMount* const jet = database.jet()) return jet->project().pages().othersChanges();
    return database.number("PRAGMA data_version");
}

void Session::requireUndamaged() { sqlite::requireUndamaged(writes_->database()); }

std::vector<std::string> Session::damages(int most, Check check) {
    constexpr std::int64_t comparedWhole = 32 << 20;  // some half a second
    Database& database = writes_->database();
    return check == Check::thorough ? damagesOf(database, most) : damagesOf(database, most, comparedWhole);
}

void Session::compareNamesBeyondAscii() {
    const TableInfo* table = findTable("TrcpRecipe");
    if (table == nullptr || table->key.empty()) return;
    Database& database = writes_->database();
    for (const std::string& column : uniqueTextColumns(database, table->name)) {
        database.execute(uniquenessTrigger(*table, column, "INSERT"));
        database.execute(uniquenessTrigger(*table, column, "UPDATE OF " + quotedName(column)));
    }
}

const TableInfo* Session::findTable(std::string_view name) {
    Database& database = writes_->database();
    if (JetMount* const jet = database.jet()) {
        if (const auto reason = jet->unavailable(name)) throw *reason;
    }
    if (const auto version = database.number("PRAGMA schema_version"); version != schemaVersion_) {
        tables_.clear();
        schemaVersion_ = version;
    }
    auto known = tables_.find(name);
    if (known == tables_.end()) {
        known = tables_.emplace(std::string(name), TableInfo::read(database, name)).first;
    }
    return known->second ? &*known->second : nullptr;
}

std::unique_ptr<ado::Rowset> Session::openTable(const TableSelect& select) {
    const TableInfo* table = findTable(select.table);
    if (table == nullptr || table->key.empty()) return nullptr;
    return std::make_unique<TableRowset>(writes_, *table, select);
}

std::unique_ptr<ado::Rowset> Session::open(std::string_view text, ado::CommandType type) {
    if (type != ado::adCmdText) {
        TableSelect whole;
        whole.table = text;
        if (auto rowset = openTable(whole)) return rowset;
        return std::make_unique<QueryRowset>(writes_, "SELECT * FROM " + quotedName(text));
    }
    const JetCommand command = JetCommand::parse(text);
    if (command.verb == JetCommand::Verb::change) {
        writes_->execute(translateCommand(command.tokens, findTable(command.target)));
        return nullptr;
    }
    if (command.table) {
        if (auto rowset = openTable(*command.table)) return rowset;
    }
    return std::make_unique<QueryRowset>(writes_, translateCommand(command.tokens, nullptr));
}

}  // namespace hx::sqlite
