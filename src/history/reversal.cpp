// SPDX-License-Identifier: MIT
#include "history/reversal.h"

#include <algorithm>
#include <map>
#include <memory>

#include "automation/error.h"
#include "history/sentences.h"

namespace hx::history {

using ado::Key;
using ado::StoredValue;
using automation::Error;
using Row = std::span<const StoredValue>;

namespace {

/// What became of one row: the places of its first and of its last change in the log.
struct Effect {
    Key key;
    std::size_t first, last;
};

/// The effects on one table, by key.
struct TableEffects {
    std::string table;
    std::vector<Effect> rows;
};

// In the order in which the tables were first changed.
std::vector<TableEffects> effectsOf(const ChangeLog& changes) {
    std::vector<TableEffects> tables;
    ChangeReader reader(changes);
    for (std::size_t place = 0; const ado::RowChange* change = reader.next(); place = reader.place()) {
        auto table = std::ranges::find(tables, change->table, &TableEffects::table);
        if (table == tables.end()) table = tables.insert(tables.end(), {std::string(change->table), {}});
        table->rows.push_back({change->key, place, place});
    }
    for (auto& [table, rows] : tables) {
        std::ranges::stable_sort(rows, {}, &Effect::key);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (kept > 0 && rows[kept - 1].key == rows[i].key) rows[kept - 1].last = rows[i].last;
            else rows[kept++] = rows[i];
        }
        rows.resize(kept);
    }
    return tables;
}

bool sameRow(Row a, Row b) {
    return std::ranges::equal(a, b, [](const StoredValue& x, const StoredValue& y) { return x.isSameAs(y); });
}

std::string nameOf(Row row, const std::vector<ado::Column>& columns, Key key) {
    for (std::size_t i = 0; i < std::min(row.size(), columns.size()); ++i) {
        if (columns[i].type == ado::adVarWChar && !row[i].text.empty()) return std::string(row[i].text);
    }
    return std::to_string(key);
}

/// Puts the rows of one table back.
class TableReversal {
  public:
    TableReversal(ado::Session& session, const ChangeLog& changes, TableEffects effects, Direction direction)
        : rowset_(session.open(effects.table, ado::adCmdTable)),
          effects_(std::move(effects)),
          direction_(direction),
          from_(changes),
          to_(changes) {
        const auto& columns = rowset_->columns();
        const auto key = std::ranges::find(columns, true, &ado::Column::isKey);
        if (key == columns.end()) throw Error(automation::errFail, sentence::noKey, {effects_.table});
        key_ = static_cast<std::size_t>(key - columns.begin());
        const auto fits = [&](Row row) { return row.empty() || row.size() == columns.size(); };
        for (const Effect& row : effects_.rows) {
            if (!fits(now(row)) || !fits(then(row)))
                throw Error(automation::errFail, sentence::otherColumns, {effects_.table});
        }
        std::erase_if(effects_.rows, [this](const Effect& row) { return sameRow(now(row), then(row)); });
    }

    /// Throws when a row is not as it should be.
    void check() {
        std::vector<Key> keys;
        std::vector<const Effect*> expected;
        for (const Effect& row : effects_.rows) {
            if (now(row).empty()) continue;
            keys.push_back(row.key);
            expected.push_back(&row);
        }
        std::size_t next = 0;
        rowset_->readStored(keys, [&](Row row) {
            const Key key = row[key_].integer;
            if (next < expected.size() && expected[next]->key != key) refuse(sentence::rowGone, *expected[next]);
            if (next >= expected.size() || !sameRow(row, now(*expected[next])))
                refuse(sentence::rowChanged, *expected[next]);
            ++next;
        });
        if (next < expected.size()) refuse(sentence::rowGone, *expected[next]);
    }

    void remove() {
        for (const Effect& row : effects_.rows) {
            if (!now(row).empty()) rowset_->remove(row.key);
        }
    }

    void restore() {
        std::size_t next = 0;
        const auto source = [&](std::span<StoredValue> values) {
            while (next < effects_.rows.size()) {
                const Row row = then(effects_.rows[next++]);
                if (row.empty()) continue;
                std::ranges::copy(row, values.begin());
                return true;
            }
            return false;
        };
        try {
            rowset_->restore(ado::allColumns(*rowset_), source);
        } catch (const Error& error) {
            if (error.number() != ado::dbErrDuplicate || next == 0) throw;
            refuse(sentence::rowTaken, effects_.rows[next - 1], error);
        }
    }

  private:
    // What the row should hold now, and what it is to hold then; empty for no row.
    Row now(const Effect& row) {
        return direction_ == Direction::back ? from_.at(row.last).after : from_.at(row.first).before;
    }
    Row then(const Effect& row) {
        return direction_ == Direction::back ? to_.at(row.first).before : to_.at(row.last).after;
    }
    [[noreturn]] void refuse(const automation::Sentence& why, const Effect& row, const Error& reason = {0, ""}) {
        const Row named = now(row).empty() ? then(row) : now(row);
        const std::string name = nameOf(named, rowset_->columns(), row.key);
        const auto say = [&](automation::Language language) {
            return automation::say(language, why, {effects_.table, name, reason.description(language)});
        };
        throw Error(automation::errFail, say(automation::Language::english), say(automation::Language::german));
    }

    std::unique_ptr<ado::Rowset> rowset_;
    TableEffects effects_;
    Direction direction_;
    ChangeReader from_, to_;
    std::size_t key_ = 0;
};

/// Taken back unless it is committed.
class Unit {
  public:
    explicit Unit(ado::Session& session) : session_(session) { session_.beginTransaction(); }
    ~Unit() {
        if (committed_) return;
        try {
            session_.rollback();
        } catch (const Error&) {
            // The database takes it back itself when the session ends.
        }
    }
    Unit(const Unit&) = delete;
    Unit& operator=(const Unit&) = delete;
    void commit() {
        session_.commit();
        committed_ = true;
    }

  private:
    ado::Session& session_;
    bool committed_ = false;
};

}  // namespace

// All goes before anything comes: two rows that have exchanged their names do not meet.
void carryOut(ado::Session& session, const ChangeLog& changes, Direction direction) {
    Unit unit(session);
    std::vector<std::unique_ptr<TableReversal>> tables;
    for (TableEffects& effects : effectsOf(changes))
        tables.push_back(std::make_unique<TableReversal>(session, changes, std::move(effects), direction));
    for (const auto& table : tables) table->check();
    for (std::size_t table = tables.size(); table > 0; --table) tables[table - 1]->remove();
    for (const auto& table : tables) table->restore();
    unit.commit();
}

}  // namespace hx::history
