// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/sqlite/database.h"

namespace hx::sqlite {

/// A transaction that writes; taken back unless it is committed.
class Transaction {
  public:
    explicit Transaction(Database& database) : database_(database) { database_.execute("BEGIN IMMEDIATE"); }
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit() { database_.execute("COMMIT"); }

  private:
    Database& database_;
};

}  // namespace hx::sqlite
