// SPDX-License-Identifier: MIT
#include "random_changes.h"

#include "adapters/jet/failure.h"
#include "adapters/jet/utf16.h"
#include "automation/text.h"

namespace hx::jet {

using ado::StoredValue;

std::uint32_t RandomChanges::random(std::uint32_t below) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33) % below;
}

// Short and long, of letters, accents, other scripts, controls, surrogates alone and in pairs.
std::string RandomChanges::text() {
    static constexpr const char* words[] = {"Würze",  "Maische", "co-op", "O'Neil", "Straße", "Łódź",
                                            "Москва", "Ωmega",   "ÄÖÜ",   "a",      "\"",     "%",
                                            "日本",   "é",       "_",     "-",      "'"};
    const std::uint32_t kind = random(10);
    if (kind == 0) return {};
    Buffer units;
    std::string text;
    const std::uint32_t length = random(kind == 1 ? 60 : 6) + 1;
    for (std::uint32_t i = 0; i < length; ++i) {
        const std::uint32_t unit = random(0xFFFF) + 1;
        if (kind == 2 && (unit < 0xD800 || unit > 0xDFFF)) append16(units, unit);
        else if (kind == 2) append32(units, 0xDC00D800U + (random(0x400) | random(0x400) << 16));
        else text += words[random(std::size(words))];
    }
    if (kind > 6) text += std::to_string(random(1000));
    if (kind == 2) return std::to_string(++texts_) + utf8Of(units);
    return text;
}

std::optional<StoredValue> RandomChanges::value(const Column& column, std::string& room) {
    if (column.isCounter || random(12) == 0) return StoredValue();
    switch (column.type) {
        case ColumnType::yesNo: return StoredValue::of(random(2));
        case ColumnType::byte: return StoredValue::of(random(256));
        case ColumnType::integer: return StoredValue::of(static_cast<std::int64_t>(random(65536)) - 32768);
        case ColumnType::longInteger: return StoredValue::of(static_cast<std::int64_t>(random(60)) - 10);
        case ColumnType::currency:
        case ColumnType::single:
        case ColumnType::real:
        case ColumnType::date:
        case ColumnType::decimal: {
            const double number = (static_cast<double>(random(2000000)) - 1000000) / 256;
            return StoredValue{StoredValue::Kind::real, static_cast<std::int64_t>(number), number, {}};
        }
        case ColumnType::guid:
            room = "{01234567-89AB-CDEF-0123-" + std::to_string(100000000000 + random(1000000)) + "}";
            return StoredValue{StoredValue::Kind::text, 0, 0, room};
        case ColumnType::binary:
        case ColumnType::ole:
            room.assign(random(4) == 0 ? random(20000) : random(90), static_cast<char>(random(256)));
            if (column.type == ColumnType::binary) room.resize(std::min<std::size_t>(room.size(), column.length));
            return StoredValue{StoredValue::Kind::bytes, 0, 0, room};
        case ColumnType::memo:
            room = text();
            for (std::uint32_t i = random(4) == 0 ? random(300) : 0; i > 0; --i) room += text();
            return StoredValue{StoredValue::Kind::text, 0, 0, room};
        case ColumnType::text: break;
    }
    room = text();
    if (random(8) > 0) room = automation::leftCharacters(room, column.length / 4U);
    return StoredValue{StoredValue::Kind::text, 0, 0, room};
}

std::vector<std::optional<StoredValue>> RandomChanges::row(const Table& table, std::vector<std::string>& rooms,
                                                           bool all) {
    const auto& columns = table.definition().columns;
    rooms.resize(columns.size());
    std::vector<std::optional<StoredValue>> values(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].isCounter || (!all && random(3) > 0)) continue;
        values[i] = value(columns[i], rooms[i]);
    }
    return values;
}

std::vector<Place> RandomChanges::places(Table& table) const {
    std::vector<Place> all;
    Table::Scan scan(table);
    for (Table::Found found; scan.next(found);) all.push_back(found.place);
    return all;
}

void RandomChanges::change(Table& table, Figures& figures) {
    std::vector<std::string> rooms;
    const std::uint32_t rows = table.rowCount();
    const std::uint32_t kind = random(10);
    try {
        if (kind < 4 || rows == 0) {
            (void)table.insert(row(table, rooms, true));
            ++figures.inserted;
            return;
        }
        const std::vector<Place> all = places(table);
        const Place place = all[random(static_cast<std::uint32_t>(all.size()))];
        if (kind < 8) {
            if (table.update(place, row(table, rooms, false))) ++figures.updated;
        } else if (table.remove(place)) {
            ++figures.removed;
        }
    } catch (const Damaged&) {
        throw;
    } catch (const automation::Error&) {
        ++figures.refused;
        if (database_.pages().isFailed()) throw;
    }
}

RandomChanges::Figures RandomChanges::run(int operations) {
    Figures figures;
    while (operations > 0) {
        database_.pages().beginWrite();
        const std::vector<std::string> names = database_.tableNames();
        if (names.empty()) {
            database_.pages().rollback();
            break;
        }
        const Figures before = figures;
        const int together = static_cast<int>(random(40)) + 1;
        for (int i = 0; i < together; ++i) {
            const bool saved = random(8) == 0;
            if (saved) database_.pages().savepoint(0);
            const Figures kept = figures;
            change(*database_.table(names[random(static_cast<std::uint32_t>(names.size()))]), figures);
            if (saved && random(2) == 0) {
                database_.pages().rollbackTo(0);
                figures = kept;
            }
            if (saved) database_.pages().release(0);
        }
        operations -= together;
        if (random(6) == 0) {
            database_.pages().rollback();
            figures = before;
            ++figures.takenBack;
        } else {
            database_.pages().commit();
        }
    }
    return figures;
}

}  // namespace hx::jet
