// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/storage.h"
#include "adapters/jet/table_maker.h"

namespace hx::jet {

class Database;

/// Makes a database of a file without contents: the header, the free pages and the system tables.
void makeDatabase(Storage& storage);

/// Adds a table to the database, in the transaction that is under way.
void addTable(Database& database, TablePlan plan);

}  // namespace hx::jet
