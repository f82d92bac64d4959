// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "adapters/jet/index_tree.h"
#include "adapters/jet/page_owner.h"
#include "adapters/jet/row.h"
#include "ado/provider.h"
#include "automation/sentence.h"

namespace hx::jet {

class Database;

/// A row that is being put together.
struct Draft {
    struct Part {
        std::size_t at, size;
    };

    Buffer bytes;                            // new values, one behind the other
    std::vector<std::optional<Part>> parts;  // of each column in them
    std::vector<bool> given;                 // which columns are new
    std::optional<std::int32_t> counter;     // the last number that the table has given, once it is stored
    Buffer row;                              // the row as it was
    Buffer contents;                         // of long values that stood in it
    Buffer heads;                            // what the row holds of new long values
    std::vector<StoredColumn> columns;       // what the row holds
    std::vector<StoredColumn> values;        // what indexes are made of
};

/// The values of a row, all in its own room.
struct Remembered {
    std::vector<ado::StoredValue> values;
    std::vector<std::string> rooms;
};

/// The rows of a table. A row is known by the value of the column that the table tells its rows apart by, a whole
/// number that is never missing; in a table without such a column by its place.
class Table {
  public:
    Table(Database& database, TableDefinition definition);

    [[nodiscard]] const TableDefinition& definition() const noexcept { return definition_; }
    [[nodiscard]] const std::optional<std::size_t>& keyColumn() const noexcept { return keyColumn_; }
    [[nodiscard]] std::uint32_t rowCount();
    /// The last number that it has given to a row.
    [[nodiscard]] std::int32_t lastCounter();
    /// The index that makes the table one for reading only, as its order is not known; null for none.
    [[nodiscard]] const Index* unknownIndex() const noexcept;

    /// A row and what it stands on.
    struct Found {
        PageRef page;
        Row row;
        Place place;
    };
    /// False when there is no such row.
    [[nodiscard]] bool read(Place place, Found& found) const;
    [[nodiscard]] std::optional<Place> find(ado::Key key);
    [[nodiscard]] ado::Key keyOf(const Found& found) const;
    /// The value of a column; its text is lent by `room`, bytes also by the row.
    [[nodiscard]] ado::StoredValue value(const Row& row, std::size_t column, std::string& room) const;

    /// Goes through all rows as they lie in the file.
    class Scan {
      public:
        explicit Scan(const Table& table) : table_(&table) {}
        [[nodiscard]] bool next(Found& found);
        /// Rows have changed since, or the object that stands for the table.
        void renew(const Table& table);

      private:
        const Table* table_;
        std::optional<DataPage> page_;
        std::uint32_t row_ = 0;
    };

    /// Goes through all rows in the order of their keys. Nobody may change any meanwhile.
    class KeyScan {
      public:
        explicit KeyScan(Table& table);
        [[nodiscard]] bool next(Found& found);

      private:
        Table* table_;
        std::optional<IndexTree::Cursor> entries_;
        std::optional<Scan> scan_;  // where the place is the key
    };

    [[nodiscard]] IndexTree& tree(std::size_t index) { return trees_[index]; }

    /// A value for each column; nothing for one that is not given.
    using Values = std::span<const std::optional<ado::StoredValue>>;
    /// What has no value gets the table's. The row's key. Throws Refused.
    ado::Key insert(Values values);
    /// Columns that are not given stay byte for byte. False when there is no such row.
    bool update(Place place, Values values);
    bool remove(Place place);

    /// Adds to `damages` what is wrong with the table, its rows and indexes.
    void check(const IndexTree::Report& report);

  private:
    friend class Relations;

    [[nodiscard]] const Column& column(std::size_t number) const noexcept { return definition_.columns[number]; }
    void requireWritable() const;
    void fill(Draft& draft, Values values) const;
    void number(Draft& draft);
    void requireValues(const Draft& draft) const;
    [[nodiscard]] Draft draftOf(const Row& row) const;
    void makeKey(Buffer& key, const Index& index, const Draft& draft) const;
    [[nodiscard]] bool isIndexed(const Index& index, const Draft& draft) const;
    void requireUnique(const Index& index, Bytes key, const Draft& draft, std::optional<Place> butOf);
    void addEntry(const Index& index, Bytes key, Place place);
    [[nodiscard]] Buffer plan(const Draft& draft) const;
    void storeLongValues(Draft& draft, Buffer& row);
    [[nodiscard]] Place addRow(Bytes bytes);
    void replaceRow(const Found& found, Bytes bytes);
    void count(std::int32_t by, const std::optional<std::int32_t>& counter = {});
    void remember(const Found& found, Remembered& remembered) const;
    void tell(const Remembered* before, Place after, ado::Key key) const;

    Database* database_;
    TableDefinition definition_;
    std::vector<IndexTree> trees_;
    PageOwner rows_;
    std::optional<std::size_t> keyColumn_, keyIndex_;
    std::vector<automation::Variant> standards_;  // the values for new rows
};

}  // namespace hx::jet
