// SPDX-License-Identifier: MIT
#include "adapters/sqlite/project_check.h"

#include <algorithm>

#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/project_schema.h"
#include "adapters/sqlite/sentences.h"
#include "adapters/sqlite/sqlite_error.h"
#include "adapters/sqlite/table_info.h"
#include "ado/types.h"
#include "automation/text.h"

namespace hx::sqlite {

namespace {

[[noreturn]] void refuse(const Database& database, const automation::Sentence& sentence,
                         std::initializer_list<std::string_view> parts) {
    throw database.error(ado::dbErrUnspecified, sentence, parts);
}

void requireTables(Database& database) {
    // What has no page of its own is a view, a virtual table or a trigger.
    Statement& odd = database.prepared(
        "SELECT type, name, ifnull((SELECT named.name FROM sqlite_schema AS named WHERE named.type IN ('table', "
        "'view') "
        "AND lower(named.name) = lower(odd.tbl_name)), tbl_name) FROM sqlite_schema AS odd "
        "WHERE type <> 'index' AND ifnull(rootpage, 0) = 0 AND lower(tbl_name) IN ('trcprecipe', 'trcprecipemember', "
        "'thxvariable')");
    const ResetGuard guard(odd);
    if (!odd.step()) return;
    const std::string table = odd.text(2), trigger = odd.text(1);
    if (odd.text(0) == "trigger") refuse(database, sentence::tableHasTrigger, {database.path(), table, trigger});
    refuse(database, sentence::tableIsNone, {database.path(), table});
}

std::int64_t sizeOf(Database& database) {
    return database.number("PRAGMA page_count") * database.number("PRAGMA page_size");
}

// What breaks a rule of its table is wrong, but no damage.
bool tellsDamage(std::string_view line) {
    return !line.empty() && line != "ok" && !line.starts_with("*** in database") &&
           !line.starts_with("NULL value in") && !line.starts_with("CHECK constraint failed");
}

std::vector<std::string> linesOf(Database& database, const std::string& pragma) {
    std::vector<std::string> lines;
    try {
        Statement check(database, pragma);
        while (check.step()) {
            for (std::string& line : automation::split(check.textView(0), '\n')) {
                if (tellsDamage(line)) lines.push_back(std::move(line));
            }
        }
    } catch (const DamagedFile&) {
        // The check goes no further than it can read.
        if (lines.empty()) lines.emplace_back(unreadable);
    }
    return lines;
}

}  // namespace

void requireProject(Database& database) {
    if (database.jet() != nullptr) return;  // has been looked at when it was opened
    if (database.number("PRAGMA application_id") != projectApplicationId) {
        refuse(database, sentence::noProject, {database.path()});
    }
    const std::int64_t version = database.number("PRAGMA user_version");
    if (version > projectSchemaVersion) {
        refuse(database, sentence::newer,
               {database.path(), std::to_string(version), std::to_string(projectSchemaVersion)});
    }
    requireTables(database);
}

void requireUndamaged(Database& database, std::int64_t checkedWhole) {
    if (JetMount* const jet = database.jet()) return jet->requireUndamaged(checkedWhole);
    const std::int64_t size = sizeOf(database);
    if (size > checkedWhole && !TableInfo::read(database, "TrcpRecipe")) return;
    const auto damages =
        linesOf(database, size > checkedWhole ? "PRAGMA quick_check(TrcpRecipe)" : "PRAGMA quick_check(1)");
    if (!damages.empty()) refuse(database, sentence::damagedSo, {database.path(), damages.front()});
}

std::vector<std::string> damagesOf(Database& database, int most, std::int64_t comparedWhole) {
    if (JetMount* const jet = database.jet()) return jet->damages(most);
    const char* const check = sizeOf(database) > comparedWhole ? "quick_check" : "integrity_check";
    return linesOf(database, std::string("PRAGMA ") + check + "(" + std::to_string(most) + ")");
}

}  // namespace hx::sqlite
