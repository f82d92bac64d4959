// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/jet_tokens.h"
#include "adapters/sqlite/table_info.h"

namespace hx::sqlite {

/// Text in SQLite's SQL with the values of its parameters.
struct BoundSql {
    std::string sql;
    std::vector<automation::Variant> parameters;
};

/// One term of ORDER BY.
struct OrderTerm {
    std::string column;
    bool descending = false;
};

/// A SELECT of plain columns of one table: its rows have keys and can be changed.
struct TableSelect {
    std::string table;
    std::vector<std::string> columns;  ///< empty for all
    std::vector<Token> condition;      ///< of WHERE; empty for none
    std::vector<OrderTerm> order;
};

/// A command in Jet SQL, taken apart.
struct JetCommand {
    enum class Verb { select, change };

    Verb verb = Verb::select;
    std::optional<TableSelect> table;  ///< of a SELECT that is one
    std::string target;                ///< the table of a DELETE or UPDATE, else empty
    std::vector<Token> tokens;

    /// SELECT, DELETE, UPDATE and INSERT; one command, with or without a closing semicolon. Throws dbErrBadCommand.
    [[nodiscard]] static JetCommand parse(std::string_view command);
};

/// A condition on one table. Literals become parameters, so that the text is the same for every recipe; True is -1,
/// as a stored true value reads whatever its number.
[[nodiscard]] BoundSql translateCondition(std::span<const Token> tokens, const TableInfo& table);

/// A whole command that is no TableSelect. `target` is the table that it changes, null for a SELECT.
[[nodiscard]] std::string translateCommand(std::span<const Token> tokens, const TableInfo* target);

}  // namespace hx::sqlite
