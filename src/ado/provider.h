// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ado/row_keys.h"
#include "ado/stored_value.h"
#include "ado/types.h"
#include "automation/variant.h"

/// What a database offers below ADO. Everything throws automation::Error with the provider's HRESULT number
/// (types.h) and a description that says what and where. One thread.
namespace hx::ado {

/// One column of a rowset, as the database reports it.
struct Column {
    std::string name;
    DataType type = adEmpty;
    std::int32_t definedSize = 0;  ///< characters for text, bytes otherwise
    bool isKey = false;            ///< the integer that identifies a row and is assigned by the database
    bool updatable = true;         ///< false for the key and for computed columns
    bool keepsAnything = false;    ///< values of any kind, whatever its type
};

/// A set of column numbers of one rowset, as bits. Rowsets have at most 64 columns that can be told apart; a
/// column from number 63 on is covered by bit 63.
using ColumnMask = std::uint64_t;
[[nodiscard]] constexpr ColumnMask columnBit(std::size_t column) noexcept {
    return ColumnMask{1} << (column < 63 ? column : 63);
}

struct Criterion;

/// A value for one column, by number.
struct ColumnValue {
    std::size_t column;
    automation::Variant value;
};

/// Whether a column holds what was read of it. Text counts by its bytes; what is not a number is the same as itself.
[[nodiscard]] bool sameValue(const automation::Variant& stored, const automation::Variant& read);

/// A value as a database holds it; its text is lent by `value`.
[[nodiscard]] StoredValue storedValue(const automation::Variant& value);
[[nodiscard]] std::vector<StoredValue> storedValues(std::span<const automation::Variant> values);

/// Receives the rows that Rowset::read finds.
class RowSink {
  public:
    virtual ~RowSink() = default;
    /// `values` has one entry a column; entries outside the mask are empty. The sink may move them out.
    /// `index` is the position of the key in the keys that were asked for; indices rise.
    virtual void row(std::size_t index, std::span<automation::Variant> values) = 0;
};

/// Gives rows to be stored, one after the other.
class RowSource {
  public:
    virtual ~RowSource() = default;
    /// Fills one value for each column that the rows are stored with; false when there is no further row.
    [[nodiscard]] virtual bool next(std::span<automation::Variant> values) = 0;
};

/// Rows of a page: so many are read at a time where many are.
inline constexpr std::size_t rowsReadTogether = 1024;

/// An opened command that returns rows. Rows are identified by key; it holds no row.
class Rowset {
  public:
    virtual ~Rowset() = default;
    [[nodiscard]] virtual const std::vector<Column>& columns() const = 0;

    /// The keys of all rows in the order of the command, restricted to `criterion` when there is one (criterion.h
    /// says what matches). Runs the command afresh at each call.
    [[nodiscard]] virtual RowKeys keys(const Criterion* criterion) = 0;

    /// Reads the rows with these keys, only the columns of the mask; the key column need not be filled. A key without
    /// a row is left out silently. Integer columns give a 32-bit integer (a double when the number is too large),
    /// adDouble a double, adBoolean a boolean, text a string, a missing value Null.
    virtual void read(std::span<const Key> keys, ColumnMask mask, RowSink& sink) = 0;
    /// Gives these columns of all rows in the order of the command, in one pass; nothing is kept. `receive` must not
    /// use the session. By keys() and read(), unless a provider has a faster way.
    virtual void scan(std::span<const std::size_t> columns, const StoredRowReceiver& receive);

    // Each is durable when it returns, unless a transaction is open. A refused duplicate is dbErrDuplicate; a row
    // that is gone is dbErrDeletedRow. Columns that are not named keep their value, or get the table's default.
    virtual Key insert(std::span<const ColumnValue> values) = 0;
    /// Stores all rows of the source, each with values for these columns. Ends with the first error: which of the rows
    /// before it are stored then is up to the provider, so that a transaction belongs around it. One after the other by
    /// insert(), unless a provider has a faster way.
    virtual void insertAll(std::span<const std::size_t> columns, RowSource& rows);
    /// Stores the values if the row still holds what read() has given of the columns of `read` (sameValue); else
    /// dbErrRowChanged, and the row stays as it is. Nobody else writes the row in between.
    virtual void update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read) = 0;
    virtual void remove(Key key) = 0;

    // Of rowsets with all columns of a table that has a key: values exactly as they are stored.
    /// All columns of the rows with these keys; a key without a row is left out silently.
    virtual void readStored(std::span<const Key> keys, const StoredRowReceiver& receive);
    /// Stores rows with values for these columns, the key too when it is among them: dbErrDuplicate when that is taken.
    /// Else and in its end as insertAll().
    virtual void restore(std::span<const std::size_t> columns, const StoredRowSource& rows);
    /// Stores these values in a row; dbErrDeletedRow when it is gone.
    virtual void rewrite(Key key, std::span<const std::size_t> columns, std::span<const StoredValue> values);
    /// A key that none of the rows that are there or have been there exceeds, as far as the store remembers.
    [[nodiscard]] virtual Key lastKey();
};

[[nodiscard]] std::vector<std::size_t> allColumns(const Rowset& rows);

/// What Rowset::scan gives, of the rows with these keys that there are.
void scanByKeys(Rowset& rows, const RowKeys& keys, std::span<const std::size_t> columns,
                const StoredRowReceiver& receive);

/// A row that a session changes. All of it is lent for the call.
struct RowChange {
    std::string_view table;
    Key key = 0;
    std::span<const StoredValue> before, after;  ///< all columns in the table's order; empty while there is no row
};

/// Is told what a session changes, while it does: must not use it.
class RowWatcher {
  public:
    virtual ~RowWatcher() = default;
    virtual void changed(const RowChange& change) noexcept = 0;
    /// The changes since the last of these calls hold, as long as the transaction does,
    virtual void kept() noexcept = 0;
    /// or have had no effect, as the statement failed.
    virtual void dropped() noexcept = 0;
    /// A change could not be told for want of memory.
    virtual void missed() noexcept = 0;
};

/// An open connection to one database.
class Session {
  public:
    virtual ~Session() = default;
    /// Opens a table (adCmdTable, adCmdTableDirect) or a SELECT in Jet SQL. Null when the command returns no rows
    /// (DELETE, UPDATE, INSERT): it has then been carried out, durably.
    [[nodiscard]] virtual std::unique_ptr<Rowset> open(std::string_view command, CommandType type) = 0;
    /// A number that is another one once anybody else has changed the database; nothing when that cannot be told.
    [[nodiscard]] virtual std::optional<std::int64_t> othersChanges() { return {}; }
    /// In a session that only reads, all that it reads until the transaction ends is as of one moment: who writes
    /// meanwhile is kept out, or is not seen.
    virtual void beginTransaction() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
    /// Tells `watcher`, which is lent, each row that this session changes from now on, by commands too; null ends that.
    /// False when the store cannot tell.
    [[nodiscard]] virtual bool watch(RowWatcher* /*watcher*/) { return false; }
    /// Throws dbErrUnspecified when the database is seen to be damaged. Takes some hundredths of a second at most, so
    /// it does not see everything.
    virtual void requireUndamaged() {}
    /// What is damaged in the whole database, a sentence without its full stop each, and at most so many. What takes
    /// long in a large one is looked at only when it is asked for.
    enum class Check { usual, thorough };
    [[nodiscard]] virtual std::vector<std::string> damages(int /*most*/, Check /*check*/) { return {}; }
};

/// A kind of database.
class Provider {
  public:
    virtual ~Provider() = default;
    /// Opens the database of an ADO connection string ("Provider=...;Data Source=...;Mode=..."). Never creates it.
    [[nodiscard]] virtual std::unique_ptr<Session> connect(std::string_view connectionString) = 0;
    /// Copies that database, as it is at one moment and whoever uses it, to a new file, which appears whole or not at
    /// all; false when the store cannot. Throws when the file exists or cannot be written.
    [[nodiscard]] virtual bool copy(std::string_view /*connectionString*/, const std::string& /*file*/) {
        return false;
    }
};

}  // namespace hx::ado
