// SPDX-License-Identifier: MIT
#include "adapters/sqlite/criterion_sql.h"

#include <algorithm>

#include "adapters/sqlite/functions.h"

namespace hx::sqlite {

using ado::Criterion;
using ado::Relation;

namespace {

const char* signOf(Relation relation) {
    switch (relation) {
        case Relation::equal: return " = ";
        case Relation::notEqual: return " <> ";
        case Relation::less: return " < ";
        case Relation::lessOrEqual: return " <= ";
        case Relation::greater: return " > ";
        case Relation::greaterOrEqual: return " >= ";
        case Relation::like: return " MATCH ";
    }
    return " = ";
}

bool isAscii(const std::string& text) {
    return std::ranges::all_of(text, [](char c) { return (c & 0x80) == 0; });
}

// Only equality of ASCII text means the same in SQLite's own collation, and can then use an index in it.
std::string collationFor(const Criterion& criterion) {
    if (criterion.relation == Relation::like) return {};
    const bool indexed = criterion.relation == Relation::equal && isAscii(criterion.value.asString());
    return std::string(" COLLATE ") + (indexed ? "NOCASE" : textCollation);
}

std::string comparison(BoundSql& bound, const Criterion& criterion, const ado::Column& column) {
    std::string name = quotedName(column.name);
    if (criterion.value.isNull()) return name + (criterion.relation == Relation::equal ? " IS NULL" : " IS NOT NULL");
    if (column.type == ado::adBoolean) name = "(-(" + name + " <> 0))";
    bound.parameters.push_back(criterion.value.type() == automation::VarType::boolean
                                   ? automation::Variant(criterion.value.asBoolean() ? -1 : 0)
                                   : criterion.value);
    if (criterion.value.isString()) name += collationFor(criterion);
    return name + signOf(criterion.relation) + "?" + std::to_string(bound.parameters.size());
}

std::string condition(BoundSql& bound, const Criterion& criterion, std::span<const ado::Column> columns) {
    if (criterion.kind == Criterion::Kind::compare) return comparison(bound, criterion, columns[criterion.column]);
    const char* join = criterion.kind == Criterion::Kind::all ? " AND " : " OR ";
    std::string sql;
    for (const Criterion& part : criterion.parts) {
        sql += (sql.empty() ? "(" : join) + condition(bound, part, columns);
    }
    return sql + ")";
}

}  // namespace

void appendCriterion(BoundSql& bound, const Criterion& criterion, std::span<const ado::Column> columns) {
    bound.sql += condition(bound, criterion, columns);
}

}  // namespace hx::sqlite
