// SPDX-License-Identifier: MIT
#include "adapters/sqlite/transaction.h"

#include <exception>

namespace hx::sqlite {

Transaction::~Transaction() {
    if (!database_.inTransaction()) return;
    try {
        database_.execute("ROLLBACK");
    } catch (const std::exception&) {
        // Closing the file takes the transaction back as well.
    }
}

}  // namespace hx::sqlite
