// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_module.h"

#include <memory>
#include <new>
#include <sqlite3.h>

#include "adapters/jet/failure.h"
#include "adapters/sqlite/jet_cursor.h"
#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/jet_project.h"
#include "adapters/sqlite/statement.h"
#include "adapters/sqlite/table_info.h"

namespace hx::sqlite {

namespace {

struct JetTab {
    sqlite3_vtab base;
    JetMount* mount;
    std::string name;
};

struct JetTabCursor {
    sqlite3_vtab_cursor base;
    JetCursor cursor;
};

JetTab& of(sqlite3_vtab* table) { return *reinterpret_cast<JetTab*>(table); }
JetCursor& of(sqlite3_vtab_cursor* cursor) { return reinterpret_cast<JetTabCursor*>(cursor)->cursor; }
jet::Pages& pagesOf(JetTab& tab) { return tab.mount->project().pages(); }

void say(sqlite3_vtab& table, const std::string& text) {
    sqlite3_free(table.zErrMsg);
    table.zErrMsg = sqlite3_mprintf("%s", text.c_str());
}

// For a catch handler. An error that has left a change half done ends the transaction, as SQLite's own do.
int failed(sqlite3_vtab* table, JetMount& mount) noexcept {
    try {
        throw;
    } catch (const jet::Refused& refused) {
        if (table != nullptr) say(*table, refused.description());
        return SQLITE_CONSTRAINT;
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    } catch (...) {
        mount.keep(std::current_exception());
        return mount.project().pages().isFailed() ? SQLITE_IOERR : SQLITE_ERROR;
    }
}

template <class Action>
int guarded(sqlite3_vtab* table, JetMount& mount, Action&& action) noexcept {
    try {
        action();
        return SQLITE_OK;
    } catch (...) {
        return failed(table, mount);
    }
}

template <class Action>
int guarded(sqlite3_vtab* table, Action&& action) noexcept {
    return guarded(table, *of(table).mount, action);
}

std::string typeOf(const jet::Column& column) {
    using Type = jet::ColumnType;
    switch (column.type) {
        case Type::yesNo: return "BOOLEAN";
        case Type::byte:
        case Type::integer: return "SMALLINT";
        case Type::longInteger: return "INTEGER";
        case Type::currency:
        case Type::single:
        case Type::real:
        case Type::date: return "DOUBLE";
        case Type::text: return "VARCHAR(" + std::to_string(column.length / 2) + ") COLLATE NOCASE";
        case Type::memo: return "LONGTEXT COLLATE NOCASE";
        case Type::guid: return "VARCHAR(38) COLLATE NOCASE";
        default: return "";
    }
}

std::string declarationOf(const jet::TableDefinition& table, std::optional<std::size_t> key) {
    std::string columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        columns += (columns.empty() ? "" : ", ") + quotedName(table.columns[i].name) + " " + typeOf(table.columns[i]);
        if (key == i) columns += " PRIMARY KEY";
    }
    return "CREATE TABLE x(" + columns + ")";
}

std::string declarationOf(JetMount& mount, const char* name) {
    if (mount.isMissing(name)) return declarationOf(variableTablePlan().definition(), 0);
    const jet::Table& table = mount.table(name);
    return declarationOf(table.definition(), table.keyColumn());
}

int connect(sqlite3* connection, void* mounted, int, const char* const* arguments, sqlite3_vtab** result, char**) {
    JetMount& mount = *static_cast<JetMount*>(mounted);
    int code = SQLITE_OK;
    const int outcome = guarded(nullptr, mount, [&] {
        const jet::Reading reading(mount.project().pages());
        code = sqlite3_declare_vtab(connection, declarationOf(mount, arguments[2]).c_str());
        if (code != SQLITE_OK) return;
        sqlite3_vtab_config(connection, SQLITE_VTAB_CONSTRAINT_SUPPORT, 1);
        *result = &(new JetTab{{}, &mount, arguments[2]})->base;
    });
    return outcome == SQLITE_OK ? code : outcome;
}

int disconnect(sqlite3_vtab* table) {
    const std::unique_ptr<JetTab> gone(&of(table));
    return SQLITE_OK;
}

int bestIndex(sqlite3_vtab* table, sqlite3_index_info* info) {
    return guarded(table, [&] {
        const jet::Reading reading(pagesOf(of(table)));
        if (of(table).mount->isMissing(of(table).name)) return;
        JetPlan::choose(of(table).mount->table(of(table).name), *info);
    });
}

int open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor) {
    return guarded(table, [&] {
        *cursor = &(new JetTabCursor{{}, JetCursor(*of(table).mount, of(table).name)})->base;
    });
}

int close(sqlite3_vtab_cursor* cursor) {
    const std::unique_ptr<JetTabCursor> gone(reinterpret_cast<JetTabCursor*>(cursor));
    return SQLITE_OK;
}

int filter(sqlite3_vtab_cursor* cursor, int plan, const char*, int count, sqlite3_value** values) {
    return guarded(cursor->pVtab, [&] {
        of(cursor).filter(JetPlan::of(plan), {values, static_cast<std::size_t>(count)});
    });
}

int next(sqlite3_vtab_cursor* cursor) {
    return guarded(cursor->pVtab, [&] { of(cursor).next(); });
}

int eof(sqlite3_vtab_cursor* cursor) { return of(cursor).atEnd() ? 1 : 0; }

int column(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int number) {
    return guarded(cursor->pVtab, [&] { of(cursor).giveColumn(context, static_cast<std::size_t>(number)); });
}

int rowid(sqlite3_vtab_cursor* cursor, sqlite3_int64* key) {
    return guarded(cursor->pVtab, [&] { *key = of(cursor).key(); });
}

// A missing value of a new row is one that is not given: SQLite tells no difference.
std::vector<std::optional<ado::StoredValue>> valuesIn(std::span<sqlite3_value*> arguments, bool isNew) {
    std::vector<std::optional<ado::StoredValue>> values(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool given =
            isNew ? sqlite3_value_type(arguments[i]) != SQLITE_NULL : sqlite3_value_nochange(arguments[i]) == 0;
        if (given) values[i] = storedValue(arguments[i]);
    }
    return values;
}

void change(JetTab& tab, std::span<sqlite3_value*> arguments, sqlite3_int64* key) {
    if (tab.mount->isMissing(tab.name)) tab.mount->makeMissing();
    jet::Table& table = tab.mount->table(tab.name);
    const bool isNew = sqlite3_value_type(arguments[0]) == SQLITE_NULL;
    const auto place = isNew ? std::nullopt : table.find(sqlite3_value_int64(arguments[0]));
    if (!isNew && !place) return;
    if (arguments.size() == 1) return void(table.remove(*place));
    const auto values = valuesIn(arguments.subspan(2), isNew);
    if (isNew) *key = table.insert(values);
    else (void)table.update(*place, values);
}

int update(sqlite3_vtab* table, int count, sqlite3_value** arguments, sqlite3_int64* key) {
    return guarded(table, [&] { change(of(table), {arguments, static_cast<std::size_t>(count)}, key); });
}

}  // namespace

/// The part that has to see into the mount.
class JetTransaction {
  public:
    static int begin(sqlite3_vtab* table) {
        JetMount& mount = *of(table).mount;
        return guarded(table, [&] {
            if (mount.project().pages().isWriting()) return;
            mount.project().pages().beginWrite();
            mount.statementWrites_ = true;
        });
    }
    static int sync(sqlite3_vtab* table) {
        JetMount& mount = *of(table).mount;
        if (!mount.statementWrites_) return SQLITE_OK;
        return guarded(table, [&] {
            mount.project().pages().commit();
            mount.statementWrites_ = false;
        });
    }
    static int commit(sqlite3_vtab*) { return SQLITE_OK; }
    static int rollback(sqlite3_vtab* table) {
        of(table).mount->statementWrites_ = false;
        pagesOf(of(table)).rollback();
        return SQLITE_OK;
    }
};

namespace {

int savepoint(sqlite3_vtab* table, int number) {
    return guarded(table, [&] { pagesOf(of(table)).savepoint(number); });
}
int release(sqlite3_vtab* table, int number) {
    return guarded(table, [&] { pagesOf(of(table)).release(number); });
}
int rollbackTo(sqlite3_vtab* table, int number) {
    return guarded(table, [&] { pagesOf(of(table)).rollbackTo(number); });
}

constexpr sqlite3_module jetModule = {2,
                                      connect,
                                      connect,
                                      bestIndex,
                                      disconnect,
                                      disconnect,
                                      open,
                                      close,
                                      filter,
                                      next,
                                      eof,
                                      column,
                                      rowid,
                                      update,
                                      JetTransaction::begin,
                                      JetTransaction::sync,
                                      JetTransaction::commit,
                                      JetTransaction::rollback,
                                      nullptr,
                                      nullptr,
                                      savepoint,
                                      release,
                                      rollbackTo,
                                      nullptr};

}  // namespace

int JetModule::install(sqlite3* connection, JetMount& mount) {
    return sqlite3_create_module_v2(connection, name, &jetModule, &mount, nullptr);
}

}  // namespace hx::sqlite
