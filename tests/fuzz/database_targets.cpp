// SPDX-License-Identifier: MIT
#include <array>
#include <filesystem>

#include "adapters/jet/database.h"
#include "adapters/sqlite/jet_sql.h"
#include "adapters/sqlite/jet_storage.h"
#include "ado/criterion.h"
#include "fuzz/targets.h"

/// What reaches the database as text, and as a file.
namespace hx::fuzz {

namespace {

const std::array<ado::Column, 4>& columns() {
    static const std::array<ado::Column, 4> all = {{{"ID", ado::adInteger, 4, true, false},
                                                    {"Name", ado::adVarWChar, 50},
                                                    {"Enabled", ado::adBoolean, 2},
                                                    {"StandardValue", ado::adDouble, 8}}};
    return all;
}

sqlite::TableInfo table() { return {"TrcpRecipe", "ID", {columns().begin(), columns().end()}}; }

void match(const ado::Criterion& criterion) {
    using automation::Variant;
    const std::array<Variant, 4> full = {Variant(7), Variant("Cola"), Variant(true), Variant(0.5)};
    const std::array<Variant, 4> none = {Variant(8), automation::Null{}, automation::Null{}, automation::Null{}};
    (void)ado::matches(criterion, full);
    (void)ado::matches(criterion, none);
    (void)ado::columnsOf(criterion);
}

}  // namespace

void criterion(std::string_view bytes) {
    (void)accepted([&] { match(ado::parseFind(bytes, columns())); });
    (void)accepted([&] {
        if (const auto parsed = ado::parseFilter(bytes, columns())) match(*parsed);
    });
    const auto half = bytes.substr(0, bytes.size() / 2);
    (void)ado::isLike(bytes.substr(half.size()), half);
}

void sql(std::string_view bytes) {
    (void)accepted([&] {
        const sqlite::JetCommand command = sqlite::JetCommand::parse(bytes);
        const sqlite::TableInfo info = table();
        if (command.table) (void)sqlite::translateCondition(command.table->condition, info);
        (void)sqlite::translateCommand(command.tokens, command.target.empty() ? nullptr : &info);
    });
}

// What is read of a damaged file may be changed: that must come to an end as well.
void jetFile(std::string_view bytes) {
    const std::string path = fileOf(bytes);
    std::filesystem::remove(path + "-journal");
    sqlite::LockWait wait(sqlite::LockWait::Milliseconds(0), {});
    (void)accepted([&] {
        sqlite::JetStorage storage(path, wait, automation::Language::english);
        jet::Database database(storage, false);
        (void)database.damages(5);
        database.pages().beginWrite();
        for (const std::string& name : database.tableNames()) {
            jet::Table& changed = *database.table(name);
            jet::Table::Found found;
            jet::Table::Scan scan(changed);
            if (scan.next(found)) (void)changed.remove(found.place);
            (void)changed.insert({});
        }
        database.pages().rollback();
    });
}

}  // namespace hx::fuzz
