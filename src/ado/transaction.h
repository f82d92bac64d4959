// SPDX-License-Identifier: MIT
#pragma once

#include "ado/connection.h"

namespace hx::ado {

/// A transaction of the connection, taken back at the end of the block unless it was committed.
class Transaction {
  public:
    explicit Transaction(Connection& connection) : connection_(connection) { connection_.beginTrans(); }
    ~Transaction() {
        if (committed_ || !connection_.inTransaction()) return;
        try {
            connection_.rollbackTrans();
        } catch (const automation::Error&) {
            // The database takes it back itself when the connection ends.
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws what the provider says; the changes are then taken back.
    void commit() {
        connection_.commitTrans();
        committed_ = true;
    }

  private:
    Connection& connection_;
    bool committed_ = false;
};

}  // namespace hx::ado
