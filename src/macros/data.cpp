// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <string_view>

#include "adapters/sqlite/project_check.h"
#include "adapters/sqlite/transaction.h"
#include "automation/text.h"
#include "macros/arguments.h"
#include "macros/globals.h"

namespace hx::macros {

namespace {

using automation::Error;
using automation::Variant;
using lua::Engine;
using lua::Fields;
using lua::Function;
using lua::List;
using lua::Value;
using lua::Values;

// A missing value gives whatever fallback is asked with.
Value readRegistry(const host::Registry& registry, const std::string& key, const std::string& value) {
    const std::string text = registry.readString(key, value, "0");
    if (text == registry.readString(key, value, "1")) return text;
    const std::int32_t number = registry.readNumber(key, value, 0);
    return number == registry.readNumber(key, value, 1) ? Value(number) : Value();
}

void writeRegistry(Studio& studio, const Arguments& given) {
    if (studio.keepsRegistry()) {
        throw Error(automation::errFail, "The registry's values stay when the macro has ended: it cannot set them");
    }
    host::Registry& registry = studio.registry();
    const Variant data = given[2].toVariant();
    if (data.isNumber()) return registry.writeNumber(given.text(0), given.text(1), automation::toInt32(data));
    registry.writeString(given.text(0), given.text(1), given.text(2));
}

void defineRegistry(Engine& engine, Studio& studio) {
    engine.define("studio", "Registry", [&studio](Values given) {
        const Arguments arguments(given);
        return readRegistry(studio.registry(), arguments.text(0), arguments.text(1));
    });
    engine.define("studio", "SetRegistry", [&studio](Values given) {
        writeRegistry(studio, Arguments(given));
        return Value();
    });
}

// Without the blanks and comments before it.
std::string_view fromFirstWord(std::string_view sql) {
    for (;;) {
        sql.remove_prefix(std::min(sql.find_first_not_of(" \t\r\n"), sql.size()));
        const bool line = sql.starts_with("--");
        if (!line && !sql.starts_with("/*")) return sql;
        const std::string_view end = line ? "\n" : "*/";
        const auto at = sql.find(end, 2);
        sql.remove_prefix(at == std::string_view::npos ? sql.size() : at + end.size());
    }
}

bool asksOnly(std::string_view sql) {
    const std::string_view text = fromFirstWord(sql);
    const auto word = text.substr(0, text.find_first_of(" \t\r\n(*"));
    return automation::equalIgnoreCase(word, "SELECT") || automation::equalIgnoreCase(word, "WITH");
}

Fields rowOf(const sqlite::Statement& row) {
    Fields fields;
    for (int column = 0; column < row.columnCount(); ++column) {
        fields.emplace_back(row.columnName(column), row.value(column, row.storedType(column)));
    }
    return fields;
}

// What it takes before it has become a table of the macro's.
std::size_t sizeOf(const Fields& row) {
    std::size_t size = sizeof(Value) + row.size() * sizeof(Fields::value_type);
    for (const auto& [name, value] : row) {
        const auto* plain = std::get_if<Variant>(&value.content);
        if (plain != nullptr && plain->isString()) size += plain->asString().size();
    }
    return size;
}

// A statement can run, and give rows, without end.
Value query(Engine& engine, const std::string& file, const std::string& sql) {
    sqlite::ProjectDatabase database(file);
    bool full = false;  // what a statement holds is given back when it ends
    database.interruptWhen([&] { return (full = engine.isFull()) || engine.stopRequested(); });
    if (!asksOnly(sql)) throw Error(automation::errFail, "Query takes a SELECT statement");
    sqlite::Statement statement(database, sql);
    const auto others = fromFirstWord(std::string_view(sql).substr(statement.sql().size()));
    if (!others.empty()) throw Error(automation::errFail, "Query takes one statement; another follows");
    if (!statement.isReadOnly()) throw Error(automation::errFail, "Query takes a statement that changes nothing");
    List rows;
    try {
        while (statement.step()) {
            Fields row = rowOf(statement);
            engine.charge(sizeOf(row));
            rows.emplace_back(std::move(row));
        }
    } catch (const Error&) {
        if (full || engine.isFull()) throw lua::OutOfMemory();
        throw;
    }
    return rows;
}

Value variables(const std::string& file) {
    sqlite::ProjectDatabase database(file);
    sqlite::Statement rows(database, "SELECT Name FROM ThxVariable ORDER BY Name");
    List names;
    while (rows.step()) names.emplace_back(rows.text(0));
    return names;
}

// A variable that stays keeps its type and comment.
void setVariables(Engine& engine, const std::string& file, const List& names) {
    sqlite::ProjectDatabase database(file);
    sqlite::Transaction transaction(database);
    database.execute("CREATE TEMP TABLE given (Name TEXT UNIQUE COLLATE NOCASE)");
    sqlite::Statement insert(database, "INSERT INTO given VALUES (?1)");
    for (const Value& name : names) {
        const sqlite::ResetGuard guard(insert);
        const Variant text = name.toVariant();
        if (!text.isString() || text.asString().empty()) {
            throw Error(automation::errTypeMismatch, "Type mismatch: the name of a variable must be a text");
        }
        engine.charge(text.asString().size());
        insert.bind(1, text);
        insert.step();
    }
    database.execute(
        "DELETE FROM ThxVariable WHERE Name NOT IN (SELECT Name FROM given);"
        "INSERT OR IGNORE INTO ThxVariable (Name) SELECT Name FROM given ORDER BY rowid;");
    transaction.commit();
}

void defineProjectData(Engine& engine, Studio& studio) {
    engine.define("studio", "Variables", [&studio](Values) { return variables(studio.requireFile()); });
    engine.define("studio", "SetVariables", [&engine, &studio](Values given) {
        setVariables(engine, studio.requireFile(), Arguments(given)[0].list());
        return Value();
    });
    engine.define("project", "Query", [&engine, &studio](Values given) {
        return query(engine, studio.requireFile(), Arguments(given).text(0));
    });
}

// A member that the macro's table does not have is an error for the editor, as of any component.
Variant callMember(const Fields& functions, std::string_view member, automation::Args arguments) {
    for (const auto& [name, function] : functions) {
        if (!automation::equalIgnoreCase(name, member)) continue;
        const List list(arguments.begin(), arguments.end());
        return function.function()(list).toVariant();
    }
    throw Error(automation::errUnknownName, "The component has no member \"" + std::string(member) + "\"");
}

void registerComponent(Studio& studio, const Arguments& given) {
    const Value table = given[1];
    const auto functions = std::make_shared<const Fields>(table.fields());
    for (const auto& [name, function] : *functions) (void)function.function();
    studio.components().standIn(given.text(0), [functions](std::string_view member, automation::Args arguments) {
        return callMember(*functions, member, arguments);
    });
}

}  // namespace

void defineData(Engine& engine, Studio& studio) {
    defineRegistry(engine, studio);
    defineProjectData(engine, studio);
    engine.define("studio", "RegisterComponent", [&studio](Values given) {
        registerComponent(studio, Arguments(given));
        return Value();
    });
}

}  // namespace hx::macros
