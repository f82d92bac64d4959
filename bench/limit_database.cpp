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

}  // namespace hx::bench
