// SPDX-License-Identifier: MIT
#include "adapters/jet/index_key.h"

#include <algorithm>
#include <array>

#include "adapters/jet/decimal.h"
#include "adapters/jet/text_key.h"
#include "adapters/jet/utf16.h"

namespace hx::jet {

namespace {

constexpr Byte nullUp = 0x00, valueUp = 0x7F, valueDown = 0x80, nullDown = 0xFF;
constexpr Byte yesUp = 0x00, noUp = 0xFF;
constexpr std::uint16_t generalEnglish = 0x0409, generalGerman = 0x0407;

void invert(std::span<Byte> bytes) noexcept {
    for (Byte& byte : bytes) byte = static_cast<Byte>(~byte);
}

void appendReversed(Buffer& key, Bytes bytes) { key.insert(key.end(), bytes.rbegin(), bytes.rend()); }

// Eight bytes and how many of them count: 9 when more follow, which is never inverted.
void appendPieces(Buffer& key, Bytes bytes, bool descending) {
    constexpr std::size_t size = 8;
    constexpr Byte more = 9;
    for (; bytes.size() > size; bytes = bytes.subspan(size)) {
        append(key, bytes.first(size));
        if (descending) invert(std::span(key).last(size));
        key.push_back(more);
    }
    if (bytes.empty()) return;
    append(key, bytes);
    key.resize(key.size() + size - bytes.size());
    key.push_back(static_cast<Byte>(bytes.size()));
    if (descending) invert(std::span(key).last(size + 1));
}

// Numbers of the machine: the sign in front, turned round, so that they compare as bytes.
void appendNumber(Buffer& key, Bytes bytes, bool isReal, bool descending) {
    const std::size_t start = key.size();
    appendReversed(key, bytes);
    const std::span<Byte> number = std::span(key).subspan(start);
    const bool negative = isReal && (number[0] & 0x80) != 0;
    if (negative) invert(number);
    else number[0] = static_cast<Byte>(number[0] ^ 0x80);
    if (descending) invert(number);
}

// The sign is turned round after all else, also in descending order.
void appendDecimal(Buffer& key, Bytes bytes, bool descending) {
    const bool negative = bytes[0] != 0;
    const std::size_t start = key.size();
    key.push_back(0);
    for (std::size_t word = 0; word < 4; ++word) appendReversed(key, bytes.subspan(1 + word * 4, 4));
    if (negative != descending) invert(std::span(key).subspan(start));
    key[start] = negative ? 0x00 : 0xFF;
}

void appendGuid(Buffer& key, Bytes bytes, bool descending) {
    Buffer ordered;
    appendReversed(ordered, bytes.first(4));
    appendReversed(ordered, bytes.subspan(4, 2));
    appendReversed(ordered, bytes.subspan(6, 2));
    append(ordered, bytes.subspan(8, 8));
    appendPieces(key, ordered, descending);
}

void appendText(Buffer& key, Bytes stored, bool descending) {
    Buffer units;
    appendUnits(units, stored);
    appendTextKey(key, units, descending);
}

}  // namespace

void appendKeyPart(Buffer& key, const Column& column, bool descending, StoredColumn stored) {
    if (!stored) return key.push_back(descending ? nullDown : nullUp);
    key.push_back(descending ? valueDown : valueUp);
    switch (column.type) {
        case ColumnType::yesNo: return key.push_back((stored->empty() ? noUp : yesUp) ^ (descending ? 0xFF : 0));
        case ColumnType::byte:
            append(key, *stored);
            if (descending) invert(std::span(key).last(stored->size()));
            return;
        case ColumnType::integer:
        case ColumnType::longInteger:
        case ColumnType::currency: return appendNumber(key, *stored, false, descending);
        case ColumnType::single:
        case ColumnType::real:
        case ColumnType::date: return appendNumber(key, *stored, true, descending);
        case ColumnType::decimal: return appendDecimal(key, *stored, descending);
        case ColumnType::guid: return appendGuid(key, *stored, descending);
        case ColumnType::text:
        case ColumnType::memo: return appendText(key, *stored, descending);
        default: return appendPieces(key, *stored, descending);
    }
}

void appendKey(Buffer& key, const TableDefinition& table, const Index& index, std::span<const StoredColumn> columns) {
    for (std::size_t i = 0; i < index.columns.size(); ++i) {
        appendKeyPart(key, table.columns[index.columns[i].column], index.columns[i].descending, columns[i]);
    }
}

bool hasKnownKeys(const Column& column) noexcept {
    if (column.type == ColumnType::ole) return false;
    if (!column.isText()) return true;
    const bool general =
        column.sortOrder == generalEnglish || column.sortOrder == generalGerman || column.sortOrder == 0;
    return general && column.sortVersion == 0;
}

}  // namespace hx::jet
