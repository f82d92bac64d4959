// SPDX-License-Identifier: MIT
#include "ado/criterion.h"

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::ado {

using automation::Variant;
using automation::VarType;

namespace {

bool holds(std::strong_ordering order, Relation relation) {
    switch (relation) {
        case Relation::equal: return order == 0;
        case Relation::notEqual: return order != 0;
        case Relation::less: return order < 0;
        case Relation::lessOrEqual: return order <= 0;
        case Relation::greater: return order > 0;
        case Relation::greaterOrEqual: return order >= 0;
        case Relation::like: return false;
    }
    return false;
}

std::strong_ordering order(double a, double b) {
    if (a < b) return std::strong_ordering::less;
    return a > b ? std::strong_ordering::greater : std::strong_ordering::equal;
}

// `text` and `pattern` are folded already.
bool foldedLike(std::string_view text, std::string_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == '*' || pattern[p] == '%')) {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && pattern[p] == text[t]) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && (pattern[p] == '*' || pattern[p] == '%')) ++p;
    return p == pattern.size();
}

}  // namespace

bool isLike(std::string_view text, std::string_view pattern) {
    return foldedLike(automation::foldCase(text), automation::foldCase(pattern));
}

bool compares(const Criterion& criterion, const Variant& stored) {
    const bool missing = stored.isNull() || stored.isEmpty();
    if (criterion.value.isNull()) return missing == (criterion.relation == Relation::equal);
    if (missing) return false;
    if (criterion.relation == Relation::like) return isLike(stored.asString(), criterion.value.asString());
    if (criterion.value.isString()) {
        return holds(automation::compareIgnoreCase(stored.asString(), criterion.value.asString()), criterion.relation);
    }
    return holds(order(automation::toDouble(stored), automation::toDouble(criterion.value)), criterion.relation);
}

bool matches(const Criterion& criterion, std::span<const Variant> row) {
    switch (criterion.kind) {
        case Criterion::Kind::compare: return compares(criterion, row[criterion.column]);
        case Criterion::Kind::all:
            for (const Criterion& part : criterion.parts) {
                if (!matches(part, row)) return false;
            }
            return true;
        case Criterion::Kind::any:
            for (const Criterion& part : criterion.parts) {
                if (matches(part, row)) return true;
            }
            return false;
    }
    return false;
}

ColumnMask columnsOf(const Criterion& criterion) {
    if (criterion.kind == Criterion::Kind::compare) return columnBit(criterion.column);
    ColumnMask mask = 0;
    for (const Criterion& part : criterion.parts) mask |= columnsOf(part);
    return mask;
}

}  // namespace hx::ado
