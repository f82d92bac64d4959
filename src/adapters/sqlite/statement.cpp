// SPDX-License-Identifier: MIT
#include "adapters/sqlite/statement.h"

#include <limits>
#include <sqlite3.h>
#include <vector>

#include "adapters/sqlite/database.h"
#include "automation/convert.h"

namespace hx::sqlite {

using automation::Null;
using automation::Variant;
using automation::VarType;

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }

Statement::Statement(const Database& database, std::string_view sql) : database_(&database) {
    sqlite3_stmt* statement = nullptr;
    database.lockWait().begin(true);
    const int code = sqlite3_prepare_v3(database.handle(), sql.data(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    statement_.reset(statement);
    database.check(code);
}

void Statement::bind(int parameter, const Variant& value) {
    sqlite3_stmt* statement = statement_.get();
    switch (value.type()) {
        case VarType::boolean:
            database_->check(sqlite3_bind_int(statement, parameter, value.asBoolean() ? 1 : 0));
            break;
        case VarType::int16:
        case VarType::int32:
            database_->check(sqlite3_bind_int(statement, parameter, automation::toInt32(value)));
            break;
        case VarType::real8: database_->check(sqlite3_bind_double(statement, parameter, value.asDouble())); break;
        case VarType::string:
            database_->check(sqlite3_bind_text64(statement, parameter, value.asString().data(), value.asString().size(),
                                                 SQLITE_TRANSIENT, SQLITE_UTF8));
            break;
        default: database_->check(sqlite3_bind_null(statement, parameter));
    }
}

void Statement::bind(int parameter, ado::Key key) {
    database_->check(sqlite3_bind_int64(statement_.get(), parameter, key));
}

void Statement::bind(int parameter, const ado::StoredValue& value) {
    using Kind = ado::StoredValue::Kind;
    sqlite3_stmt* statement = statement_.get();
    const auto bound = [&] {
        switch (value.kind) {
            case Kind::integer: return sqlite3_bind_int64(statement, parameter, value.integer);
            case Kind::real: return sqlite3_bind_double(statement, parameter, value.real);
            case Kind::text:
                return sqlite3_bind_text64(statement, parameter, value.text.data(), value.text.size(), SQLITE_TRANSIENT,
                                           SQLITE_UTF8);
            case Kind::bytes:
                return sqlite3_bind_blob64(statement, parameter, value.text.data(), value.text.size(),
                                           SQLITE_TRANSIENT);
            default: return sqlite3_bind_null(statement, parameter);
        }
    };
    database_->check(bound());
}

bool Statement::step() {
    LockWait& wait = database_->lockWait();
    wait.begin(isReadOnly());
    database_->beginWork();
    const int code = sqlite3_step(statement_.get());
    if (code != SQLITE_ROW && !isReadOnly()) database_->statementEnds(code == SQLITE_DONE);
    if (code != SQLITE_ROW && code != SQLITE_DONE) database_->fail(code);
    wait.letIn();
    return code == SQLITE_ROW;
}

void Statement::reset() noexcept {
    sqlite3_reset(statement_.get());
    sqlite3_clear_bindings(statement_.get());
}

int Statement::columnCount() const noexcept { return sqlite3_column_count(statement_.get()); }
std::string Statement::columnName(int column) const { return sqlite3_column_name(statement_.get(), column); }

std::string Statement::declaredType(int column) const {
    const char* type = sqlite3_column_decltype(statement_.get(), column);
    return type == nullptr ? std::string() : std::string(type);
}

bool Statement::isReadOnly() const noexcept { return sqlite3_stmt_readonly(statement_.get()) != 0; }

std::string_view Statement::sql() const noexcept { return sqlite3_sql(statement_.get()); }

ado::Key Statement::key(int column) const noexcept { return sqlite3_column_int64(statement_.get(), column); }

std::string_view Statement::textView(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

namespace {

Variant integer(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (value >= Limits::min() && value <= Limits::max()) return static_cast<std::int32_t>(value);
    return static_cast<double>(value);
}

}  // namespace

Variant Statement::value(int column, ado::DataType type) const {
    if (sqlite3_column_type(statement_.get(), column) == SQLITE_NULL) return Null{};
    switch (type) {
        case ado::adSmallInt:
        case ado::adInteger: return integer(sqlite3_column_int64(statement_.get(), column));
        case ado::adDouble: return sqlite3_column_double(statement_.get(), column);
        case ado::adBoolean: return sqlite3_column_double(statement_.get(), column) != 0;
        default: return text(column);
    }
}

void Statement::giveRows(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) {
    std::vector<ado::StoredValue> row(columns.size());
    while (step()) {
        for (std::size_t i = 0; i < row.size(); ++i) putStored(row[i], static_cast<int>(columns[i]));
        receive(row);
    }
}

void Statement::putStored(ado::StoredValue& place, int column) const {
    sqlite::putStored(place, sqlite3_column_value(statement_.get(), column));
}

ado::StoredValue storedValue(sqlite3_value* value) {
    using Kind = ado::StoredValue::Kind;
    const auto text = [&](const void* bytes) {
        const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
        return bytes == nullptr ? std::string_view() : std::string_view(static_cast<const char*>(bytes), size);
    };
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER: return ado::StoredValue::of(sqlite3_value_int64(value));
        case SQLITE_FLOAT: return {Kind::real, sqlite3_value_int64(value), sqlite3_value_double(value), {}};
        case SQLITE_TEXT: return {Kind::text, 0, 0, text(sqlite3_value_text(value))};
        case SQLITE_BLOB: return {Kind::bytes, 0, 0, text(sqlite3_value_blob(value))};
        default: return {};
    }
}

ado::DataType Statement::storedType(int column) const noexcept {
    switch (sqlite3_column_type(statement_.get(), column)) {
        case SQLITE_NULL: return ado::adEmpty;
        case SQLITE_INTEGER: return ado::adInteger;
        case SQLITE_FLOAT: return ado::adDouble;
        default: return ado::adVarWChar;
    }
}

}  // namespace hx::sqlite
