// SPDX-License-Identifier: MIT
#include "support/memory_database.h"

#include "ado/errors.h"
#include "automation/convert.h"
#include "automation/text.h"

namespace hx::support {

using automation::Error;
using automation::Null;
using automation::Variant;

MemoryTable::MemoryTable(std::string name, std::vector<MemoryColumn> columns, Identity identity)
    : name_(std::move(name)), definitions_(std::move(columns)), identity_(identity) {
    for (const MemoryColumn& definition : definitions_) columns_.push_back(definition.column);
}

const MemoryTable::Row* MemoryTable::row(ado::Key key) const {
    const auto found = rows_.find(key);
    return found == rows_.end() ? nullptr : &found->second;
}

ado::Key MemoryTable::insert(std::span<const ado::ColumnValue> values) {
    Row row;
    for (const MemoryColumn& definition : definitions_) row.push_back(definition.defaultValue);
    row[0] = static_cast<std::int32_t>(lastKey_ + 1);
    for (const ado::ColumnValue& value : values) row[value.column] = value.value;
    const ado::Key key = automation::toInt32(row[0]);
    if (rows_.contains(key)) {
        throw Error(ado::dbErrDuplicate, "Table \"" + name_ + "\" has a row " + std::to_string(key) + " already.");
    }
    requireUnique(key, row);
    if (const std::string identity = identityOf(row); !identity.empty()) identities_[identity] = key;
    rows_.emplace(key, std::move(row));
    lastKey_ = std::max(lastKey_, key);
    return key;
}

void MemoryTable::update(ado::Key key, std::span<const ado::ColumnValue> values,
                         std::span<const ado::ColumnValue> read) {
    Row& stored = require(key);
    for (const ado::ColumnValue& value : read) {
        if (!ado::sameValue(stored[value.column], value.value)) ado::throwRowChanged(columns_[value.column].name);
    }
    Row changed = stored;
    for (const ado::ColumnValue& value : values) changed[value.column] = value.value;
    requireUnique(key, changed);
    identities_.erase(identityOf(stored));
    if (const std::string identity = identityOf(changed); !identity.empty()) identities_[identity] = key;
    stored = std::move(changed);
}

void MemoryTable::remove(ado::Key key) {
    identities_.erase(identityOf(require(key)));
    rows_.erase(key);
}

MemoryTable::Row& MemoryTable::require(ado::Key key) {
    const auto found = rows_.find(key);
    if (found == rows_.end()) {
        throw Error(ado::dbErrDeletedRow,
                    "Row " + std::to_string(key) + " of table \"" + name_ + "\" has been deleted.");
    }
    return found->second;
}

void MemoryTable::requireUnique(ado::Key key, const Row& row) const {
    for (std::size_t i = 0; i < definitions_.size(); ++i) {
        if (!definitions_[i].unique) continue;
        for (const auto& [other, values] : rows_) {
            if (other == key || !automation::equalIgnoreCase(toText(values[i]), toText(row[i]))) continue;
            throw Error(ado::dbErrDuplicate, "The value \"" + toText(row[i]) + "\" exists already in column \"" +
                                                 columns_[i].name + "\" of table \"" + name_ + "\".");
        }
    }
    const std::string identity = identityOf(row);
    const auto same = identity.empty() ? identities_.end() : identities_.find(identity);
    if (same != identities_.end() && same->second != key) {
        throw Error(ado::dbErrDuplicate, "Table \"" + name_ + "\" has such a row already.");
    }
}

MemoryTable& MemoryDatabase::addTable(MemoryTable table) { return tables_.emplace_back(std::move(table)); }

MemoryTable& MemoryDatabase::table(std::string_view name) {
    for (MemoryTable& table : tables_) {
        if (automation::equalIgnoreCase(table.name(), name)) return table;
    }
    throw Error(ado::dbErrNoTable, "There is no table \"" + std::string(name) + "\".");
}

namespace {

constexpr std::int32_t textSize = 255;

MemoryColumn key(std::string name) { return {{std::move(name), ado::adInteger, 4, true, false}, 0, false}; }
MemoryColumn text(std::string name) { return {{std::move(name), ado::adVarWChar, textSize}, "", false}; }
MemoryColumn boolean(std::string name) { return {{std::move(name), ado::adBoolean, 2}, false, false}; }
MemoryColumn integer(std::string name) { return {{std::move(name), ado::adInteger, 4}, 0, false}; }

MemoryColumn uniqueText(std::string name) {
    MemoryColumn column = text(std::move(name));
    column.unique = true;
    return column;
}

// A recipe has a member once under a name; different sub-recipes may share the variable of their file name.
std::string memberOf(const MemoryTable::Row& row) {
    constexpr std::size_t parent = 1, variable = 2, child = 3;
    const std::string name = toText(row[variable]);
    if (name.empty()) return {};
    return toText(row[parent]) + "/" + toText(row[child]) + "/" + automation::foldCase(name);
}

}  // namespace

MemoryDatabase MemoryDatabase::withRecipeTables() {
    MemoryDatabase database;
    database.addTable({"TrcpRecipe",
                       {key("ID"),
                        uniqueText("Name"),
                        text("VarRecipeName"),
                        text("VarDescription"),
                        {{"FilePath", ado::adLongVarWChar, 0}, "", false},
                        text("FileExtension"),
                        boolean("Enabled"),
                        text("Comment"),
                        text("VarLoad"),
                        text("VarSave"),
                        text("VarRead"),
                        text("VarWrite"),
                        {{"StandardValue", ado::adDouble, 8}, 0.0, false},
                        text("VarSetValue"),
                        boolean("SaveSubRecipes"),
                        boolean("SaveChanges"),
                        boolean("CryptEngine"),
                        integer("Options")}});
    database.addTable(
        {"TrcpRecipeMember", {key("ID"), integer("ParentID"), text("VarRecipe"), integer("ChildID")}, &memberOf});
    return database;
}

}  // namespace hx::support
