// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_plan.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <sqlite3.h>

#include "adapters/jet/index_key.h"
#include "adapters/jet/table.h"

namespace hx::sqlite {

namespace {

using Constraint = sqlite3_index_info::sqlite3_index_constraint;

constexpr double rowCost = 1, findCost = 10;

bool isKey(const jet::Table& table, int column) {
    return column < 0 || (table.keyColumn() && static_cast<int>(*table.keyColumn()) == column);
}

// Texts that SQLite takes for the same have the same key: where the case of ASCII letters alone is ignored.
bool comparesLikeIndex(sqlite3_index_info& info, int constraint, const jet::Column& column) {
    if (!column.isText()) return true;
    if (column.type == jet::ColumnType::memo) return false;
    const char* const collation = sqlite3_vtab_collation(&info, constraint);
    return std::strcmp(collation, "NOCASE") == 0 || std::strcmp(collation, "BINARY") == 0;
}

bool isWhole(const jet::Column& column) {
    return column.type == jet::ColumnType::longInteger || column.type == jet::ColumnType::integer ||
           column.type == jet::ColumnType::byte;
}

/// What SQLite asks of one table, and what it is told.
class Question {
  public:
    Question(jet::Table& table, sqlite3_index_info& info)
        : table_(table), info_(info), rows_(std::max<double>(table.rowCount(), 1)) {}

    void answer() {
        if (const auto key = find(-1, SQLITE_INDEX_CONSTRAINT_EQ)) return answerKey(*key);
        const auto [index, columns] = bestIndex();
        if (columns > 0) return answerIndex(index, columns);
        answerRange();
    }

  private:
    [[nodiscard]] std::optional<int> find(int column, unsigned char operation, unsigned char other = 0) const {
        for (int i = 0; i < info_.nConstraint; ++i) {
            const Constraint& constraint = info_.aConstraint[i];
            const bool same = column < 0 ? isKey(table_, constraint.iColumn) : constraint.iColumn == column;
            if (!same || constraint.usable == 0) continue;
            if (constraint.op == operation || constraint.op == other) return i;
        }
        return std::nullopt;
    }

    void take(int constraint, bool omit) {
        info_.aConstraintUsage[constraint].argvIndex = ++arguments_;
        info_.aConstraintUsage[constraint].omit = omit ? 1 : 0;
    }

    void answerKey(int constraint) {
        take(constraint, true);
        finish({JetPlan::Way::key}, findCost, 1);
        info_.idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
        noteOrder();
    }

    // The one of which most columns are given; the unique one when as many are of two.
    [[nodiscard]] std::pair<std::size_t, std::size_t> bestIndex() const {
        std::size_t best = 0, most = 0;
        const auto& indexes = table_.definition().indexes;
        for (std::size_t i = 0; i < indexes.size(); ++i) {
            const std::size_t given = givenColumns(indexes[i]);
            const bool better = given > most || (given == most && given > 0 && indexes[i].isUnique);
            if (!better) continue;
            best = i;
            most = given;
        }
        return {best, most};
    }

    [[nodiscard]] std::size_t givenColumns(const jet::Index& index) const {
        std::size_t given = 0;
        for (const jet::IndexColumn& part : index.columns) {
            const jet::Column& column = table_.definition().columns[part.column];
            const auto constraint = find(static_cast<int>(part.column), SQLITE_INDEX_CONSTRAINT_EQ);
            if (!constraint || !jet::hasKnownKeys(column)) return given;
            if (!comparesLikeIndex(info_, *constraint, column)) return given;
            ++given;
        }
        return given;
    }

    void answerIndex(std::size_t number, std::size_t columns) {
        const jet::Index& index = table_.definition().indexes[number];
        for (std::size_t i = 0; i < columns; ++i) {
            const std::size_t column = index.columns[i].column;
            const auto constraint = find(static_cast<int>(column), SQLITE_INDEX_CONSTRAINT_EQ);
            take(*constraint, isWhole(table_.definition().columns[column]));
        }
        const double each = index.isUnique && columns == index.columns.size() ? 1 : std::max(rows_ / 10, 1.0);
        finish({JetPlan::Way::index, false, false, number, columns}, findCost + each * 2 * rowCost, each);
    }

    void answerRange() {
        JetPlan plan;
        const auto least = find(-1, SQLITE_INDEX_CONSTRAINT_GE, SQLITE_INDEX_CONSTRAINT_GT);
        const auto greatest = find(-1, SQLITE_INDEX_CONSTRAINT_LE, SQLITE_INDEX_CONSTRAINT_LT);
        const bool ordered = table_.keyColumn() && wantsKeyOrder();
        if (!table_.keyColumn() || (!least && !greatest && !ordered)) return finish(plan, rows_ * rowCost, rows_);
        plan.way = JetPlan::Way::keyRange;
        plan.fromLeast = least.has_value();
        plan.toGreatest = greatest.has_value();
        if (least) take(*least, false);
        if (greatest) take(*greatest, false);
        const double part = rows_ / (least ? 4 : 1) / (greatest ? 4 : 1);
        finish(plan, findCost + part * 2 * rowCost, part);
        noteOrder();
    }

    [[nodiscard]] bool wantsKeyOrder() const {
        return info_.nOrderBy == 1 && isKey(table_, info_.aOrderBy[0].iColumn) && info_.aOrderBy[0].desc == 0;
    }
    void noteOrder() {
        if (wantsKeyOrder()) info_.orderByConsumed = 1;
    }

    void finish(const JetPlan& plan, double cost, double rows) {
        info_.idxNum = plan.number();
        info_.estimatedCost = cost;
        info_.estimatedRows = static_cast<sqlite3_int64>(std::max(rows, 1.0));
    }

    jet::Table& table_;
    sqlite3_index_info& info_;
    double rows_;
    int arguments_ = 0;
};

}  // namespace

void JetPlan::choose(jet::Table& table, sqlite3_index_info& info) { Question(table, info).answer(); }

}  // namespace hx::sqlite
