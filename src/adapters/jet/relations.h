// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "adapters/jet/row.h"

namespace hx::jet {

class Database;
class Table;
struct Relation;

/// Keeps what relations between tables ask for. Values are those of all columns of a row.
class Relations {
  public:
    using Values = std::span<const StoredColumn>;

    explicit Relations(Database& database) : database_(database) {}

    /// Throws dbErrIntegrity unless there are the rows that the row refers to. With `before` only what changes counts.
    void requireParents(Table& table, Values values, const std::vector<StoredColumn>* before = nullptr);
    /// The row goes away, or becomes `after`: throws dbErrIntegrity when others refer to it, unless the relation takes
    /// them along. These are then deleted or lose what refers to it.
    void requireNoChildren(Table& table, Values values, const std::vector<StoredColumn>* after);
    /// Rows that refer to the row follow its change.
    void changeChildren(Table& table, Values before, Values after);

  private:
    struct Other {
        Table& table;
        std::size_t index;
    };
    [[nodiscard]] Other otherOf(const Relation& relation);
    [[nodiscard]] Buffer keyIn(const Other& other, const Table& table, const Relation& relation, Values values) const;
    void setChildren(const Other& other, Bytes key, const Table& table, const Relation& relation, const Values* values);
    void removeChildren(const Other& other, Bytes key);

    // Some of the rows may be changed by then: an error loses the transaction.
    template <class Change>
    void losing(Change&& change);

    Database& database_;
};

}  // namespace hx::jet
