// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"
#include "automation/variant.h"

namespace hx::ado {

enum class Relation { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual, like };

/// A condition on the columns of a rowset: one comparison, or several joined by AND (all) or OR (any).
/// The value has the kind of its column: a double for numbers (whatever their size), a boolean, a string, or Null.
/// Text compares ignoring case. A missing value matches nothing but "= Null"; "<> Null" matches all others.
struct Criterion {
    enum class Kind { compare, all, any };

    Kind kind = Kind::compare;
    std::vector<Criterion> parts;  ///< of all and any
    std::size_t column = 0;        ///< of a comparison, as the next two
    Relation relation = Relation::equal;
    automation::Variant value;
};

/// The one comparison of Recordset::find: a name, optionally in brackets, an operator (= <> < <= > >= LIKE) and a
/// value: 'text' (a doubled quote stands for one), a number, True, False or Null. Throws adErrInvalidArgument with what
/// is wrong and where.
[[nodiscard]] Criterion parseFind(std::string_view text, std::span<const Column> columns);

/// Comparisons joined by AND and OR (AND binds closer), with parentheses. Nothing for a text of blanks.
[[nodiscard]] std::optional<Criterion> parseFilter(std::string_view text, std::span<const Column> columns);

/// What one comparison says of a value of its column.
[[nodiscard]] bool compares(const Criterion& comparison, const automation::Variant& stored);

/// `row` has one value a column.
[[nodiscard]] bool matches(const Criterion& criterion, std::span<const automation::Variant> row);

/// The columns that the criterion looks at.
[[nodiscard]] ColumnMask columnsOf(const Criterion& criterion);

/// `*` and `%` stand for any text. Ignores case.
[[nodiscard]] bool isLike(std::string_view text, std::string_view pattern);

}  // namespace hx::ado
