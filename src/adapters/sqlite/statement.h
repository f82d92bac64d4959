// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>

#include "ado/row_keys.h"
#include "ado/stored_value.h"
#include "ado/types.h"
#include "automation/variant.h"

struct sqlite3_stmt;
struct sqlite3_value;

namespace hx::sqlite {

class Database;

/// A value exactly as it is stored, lent as long as SQLite lends it.
[[nodiscard]] ado::StoredValue storedValue(sqlite3_value* value);
/// The same where many are read: the value is made in its place, as a copy would wait for what was just written in
/// parts.
inline void putStored(ado::StoredValue& place, sqlite3_value* value) {
    new (&place) ado::StoredValue(storedValue(value));
}

/// A prepared statement. Parameters count from 1, columns from 0. The wrappers that libraries give (SQLiteCpp) keep the
/// handle to themselves: where a statement ends in its text and whether it only reads cannot be asked of them, and both
/// are needed, for what macros ask and for waits for locks.
class Statement {
  public:
    /// Throws what Database::fail says when the text cannot be prepared.
    Statement(const Database& database, std::string_view sql);

    void bind(int parameter, const automation::Variant& value);
    void bind(int parameter, ado::Key key);
    void bind(int parameter, const ado::StoredValue& value);
    /// True while there is a row.
    bool step();
    void reset() noexcept;

    [[nodiscard]] int columnCount() const noexcept;
    [[nodiscard]] std::string columnName(int column) const;
    /// The declared type of the table column behind it, empty for an expression.
    [[nodiscard]] std::string declaredType(int column) const;
    [[nodiscard]] bool isReadOnly() const noexcept;
    /// The part of the text that is this statement: it begins the text and ends with its semicolon.
    [[nodiscard]] std::string_view sql() const noexcept;

    /// Runs to the end and gives these columns of every row.
    void giveRows(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive);

    // Of the current row.
    [[nodiscard]] ado::Key key(int column) const noexcept;
    /// The value as ADO gives it for a column of the type. What another program stored in another type is converted as
    /// SQLite converts it.
    [[nodiscard]] automation::Variant value(int column, ado::DataType type) const;
    [[nodiscard]] std::string text(int column) const { return std::string(textView(column)); }
    /// The same without a copy: valid until the next step or reset.
    [[nodiscard]] std::string_view textView(int column) const;
    /// What the value itself is: adInteger, adDouble, adVarWChar; adEmpty for a missing one.
    [[nodiscard]] ado::DataType storedType(int column) const noexcept;

    /// Exactly as it is stored; lent until the next step or reset.
    void putStored(ado::StoredValue& place, int column) const;

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };

    const Database* database_;
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

}  // namespace hx::sqlite
