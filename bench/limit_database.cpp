// SPDX-License-Identifier: MIT
#include "bench/limit_database.h"

#include <stdexcept>

namespace hx::bench {

LimitDatabase::LimitDatabase(const Project& project) {
    if (sqlite3_open_v2(project.path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
}

sqlite3_stmt* LimitDatabase::prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
    return statement;
}

void LimitDatabase::step(sqlite3_stmt* statement) {
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int i = 0; i < columns; ++i) {
            if (sqlite3_column_type(statement, i) == SQLITE_TEXT) sum_ += sqlite3_column_text(statement, i)[0];
            else sum_ += sqlite3_column_int64(statement, i);
        }
    }
    sqlite3_finalize(statement);
    if (sum_ == 0) throw std::runtime_error("the limit's query found nothing");
}

std::int64_t LimitDatabase::number(const std::string& sql) {
    sqlite3_stmt* statement = prepare(sql);
    const bool found = sqlite3_step(statement) == SQLITE_ROW;
    const std::int64_t result = found ? sqlite3_column_int64(statement, 0) : 0;
    sqlite3_finalize(statement);
    require(found);
    return result;
}

void LimitDatabase::execute(const std::string& sql) {
    require(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK);
}

void LimitDatabase::addMembers(std::int32_t recipe, const std::vector<std::string>& variables) {
    sqlite3_stmt* statement = prepare("INSERT INTO TrcpRecipeMember (VarRecipe, ParentID, ChildID) VALUES (?1, ?2, 0)");
    bool added = true;
    for (const std::string& variable : variables) {
        sqlite3_bind_text(statement, 1, variable.data(), static_cast<int>(variable.size()), SQLITE_STATIC);
        sqlite3_bind_int(statement, 2, recipe);
        added = sqlite3_step(statement) == SQLITE_DONE && added;
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    require(added);
}

void LimitDatabase::require(bool condition) {
    if (!condition) throw std::runtime_error(sqlite3_errmsg(handle_));
}

}  // namespace hx::bench
