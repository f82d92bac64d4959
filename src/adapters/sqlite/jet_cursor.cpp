// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_cursor.h"

#include <cmath>
#include <limits>
#include <sqlite3.h>
#include <utility>

#include "adapters/jet/column_value.h"
#include "adapters/jet/index_key.h"
#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/statement.h"

namespace hx::sqlite {

namespace {

using Limits = std::numeric_limits<std::int32_t>;

// What a column must hold to equal the value; nothing when it cannot.
std::optional<jet::Buffer> storedFor(const jet::Column& column, sqlite3_value* value) {
    const bool number = !column.isText() && jet::sizeOf(column.type) > 0 && column.type != jet::ColumnType::guid;
    const int kind =
        number || column.type == jet::ColumnType::yesNo ? sqlite3_value_numeric_type(value) : sqlite3_value_type(value);
    if (kind == SQLITE_NULL) return std::nullopt;
    const ado::StoredValue stored = storedValue(value);
    jet::Buffer bytes;
    try {
        if (!jet::store(bytes, column, stored)) return std::nullopt;
    } catch (const automation::Error&) {
        return std::nullopt;
    }
    std::string room;
    const ado::StoredValue back = jet::valueOf(column, jet::Bytes(bytes), room);
    if (back.isNumber() && stored.isNumber() && back.real != stored.real) return std::nullopt;
    if (back.isNumber() != stored.isNumber() && number) return std::nullopt;
    return bytes;
}

jet::Buffer keyFor(const jet::Table& table, std::int32_t number) {
    jet::Buffer bytes, key;
    jet::append32(bytes, static_cast<std::uint32_t>(number));
    jet::appendKeyPart(key, table.definition().columns[*table.keyColumn()], false, jet::Bytes(bytes));
    return key;
}

void giveText(sqlite3_context* context, std::string_view text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void give(sqlite3_context* context, const ado::StoredValue& value) {
    using Kind = ado::StoredValue::Kind;
    switch (value.kind) {
        case Kind::integer: return sqlite3_result_int64(context, value.integer);
        case Kind::real: return sqlite3_result_double(context, value.real);
        case Kind::text: return giveText(context, value.text);
        case Kind::bytes: return sqlite3_result_blob64(context, value.text.data(), value.text.size(), SQLITE_TRANSIENT);
        case Kind::null: return sqlite3_result_null(context);
    }
}

}  // namespace

JetCursor::JetCursor(JetMount& mount, const std::string& table)
    : mount_(mount), name_(table), reading_(mount.project().pages()) {}

jet::Table& JetCursor::table() {
    jet::Pages& pages = mount_.project().pages();
    if (table_ == nullptr || generation_ != pages.generation()) {
        table_ = &mount_.table(name_);
        generation_ = pages.generation();
    }
    return *table_;
}

void JetCursor::filter(const JetPlan& plan, std::span<sqlite3_value*> values) {
    plan_ = plan;
    found_ = {};
    scan_.reset();
    entries_.reset();
    changes_ = mount_.project().pages().changes();
    atEnd_ = true;
    if (mount_.isMissing(name_)) return;
    jet::Table& table = this->table();
    switch (plan.way) {
        case JetPlan::Way::all:
            atEnd_ = false;
            scan_.emplace(table);
            return stepScan();
        case JetPlan::Way::key: {
            if (sqlite3_value_numeric_type(values[0]) == SQLITE_NULL) return;
            const double number = sqlite3_value_double(values[0]);
            const ado::Key key = sqlite3_value_int64(values[0]);
            const int kind = sqlite3_value_numeric_type(values[0]);
            if (kind != SQLITE_INTEGER && (kind != SQLITE_FLOAT || number != static_cast<double>(key))) return;
            const auto place = table.find(key);
            atEnd_ = !place || !table.read(*place, found_);
            return;
        }
        case JetPlan::Way::keyRange: return startRange(plan, values);
        case JetPlan::Way::index: return startKeys(plan, values);
    }
}

void JetCursor::startRange(const JetPlan& plan, std::span<sqlite3_value*> values) {
    jet::Table& table = this->table();
    std::size_t at = 0;
    double least = Limits::min(), greatest = Limits::max();
    const auto bound = [&](double& end, auto round) {
        sqlite3_value* const value = values[at++];
        const int kind = sqlite3_value_numeric_type(value);
        if (kind == SQLITE_NULL) return false;
        // Behind all numbers stand texts.
        const bool number = kind == SQLITE_INTEGER || kind == SQLITE_FLOAT;
        end = number ? round(sqlite3_value_double(value)) : std::numeric_limits<double>::infinity();
        return true;
    };
    if (plan.fromLeast && !bound(least, [](double value) { return std::ceil(value); })) return;
    if (plan.toGreatest && !bound(greatest, [](double value) { return std::floor(value); })) return;
    least = std::max<double>(least, Limits::min());
    greatest = std::min<double>(greatest, Limits::max());
    if (!(least <= greatest)) return;
    for (std::size_t i = 0; i < table.definition().indexes.size(); ++i) {
        const jet::Index& index = table.definition().indexes[i];
        const bool isKeys = index.columns.size() == 1 && index.columns.front().column == *table.keyColumn();
        if (!isKeys || index.columns.front().descending) continue;
        return startIndex(i, keyFor(table, static_cast<std::int32_t>(least)),
                          keyFor(table, static_cast<std::int32_t>(greatest)));
    }
}

void JetCursor::startKeys(const JetPlan& plan, std::span<sqlite3_value*> values) {
    jet::Table& table = this->table();
    const jet::Index& index = table.definition().indexes[plan.index];
    jet::Buffer key;
    for (std::size_t i = 0; i < plan.columns; ++i) {
        const jet::Column& column = table.definition().columns[index.columns[i].column];
        const auto stored = storedFor(column, values[i]);
        if (!stored) return;
        jet::appendKeyPart(key, column, index.columns[i].descending, jet::Bytes(*stored));
    }
    startIndex(plan.index, key, key);
}

void JetCursor::startIndex(std::size_t index, jet::Buffer from, jet::Buffer start) {
    index_ = index;
    start_ = std::move(start);
    entries_.emplace(table().tree(index), from);
    atEnd_ = false;
    stepIndex(true);
}

// The keys of a range end with the greatest, those of an index where one begins otherwise.
bool JetCursor::isPast() const noexcept { return entries_->compareStart(start_) > 0; }

void JetCursor::stepIndex(bool first) {
    for (;; first = false) {
        if (!first) entries_->next();
        if (entries_->atEnd() || isPast()) break;
        if (!table().read(entries_->place(), found_)) continue;
        current_.clear();
        return entries_->leaf().appendKey(current_, entries_->entry());
    }
    atEnd_ = true;
    found_ = {};
}

void JetCursor::stepScan() {
    if (scan_->next(found_)) return;
    atEnd_ = true;
    found_ = {};
}

// Somebody has changed rows meanwhile: what was read of the current one may have moved.
void JetCursor::keepUp() {
    jet::Pages& pages = mount_.project().pages();
    if (changes_ == pages.changes() && generation_ == pages.generation()) return;
    const jet::Place place = found_.place;
    jet::Table& table = this->table();
    changes_ = pages.changes();
    if (entries_) {
        // The entry may be gone: then the next one stands there already.
        entries_.emplace(table.tree(index_), current_);
        atNext_ = entries_->atEnd() || !entries_->leaf().equals(entries_->entry(), current_);
    }
    if (scan_) scan_->renew(table);
    if (!table.read(place, found_)) found_ = {};
    found_.place = place;
}

void JetCursor::next() {
    if (plan_.way == JetPlan::Way::key) {
        atEnd_ = true;
        found_ = {};
        return;
    }
    keepUp();
    if (scan_) return stepScan();
    stepIndex(std::exchange(atNext_, false));
}

ado::Key JetCursor::key() {
    keepUp();
    if (found_.row.bytes().empty()) return 0;
    return table().keyOf(found_);
}

void JetCursor::giveColumn(sqlite3_context* context, std::size_t column) {
    if (sqlite3_vtab_nochange(context) != 0) return;
    keepUp();
    if (found_.row.bytes().empty()) return sqlite3_result_null(context);
    give(context, table().value(found_.row, column, room_));
}

}  // namespace hx::sqlite
