// SPDX-License-Identifier: MIT
#include "adapters/jet/column_value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "adapters/jet/decimal.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/utf16.h"
#include "ado/types.h"
#include "automation/convert.h"

namespace hx::jet {

using ado::StoredValue;

namespace {

using Kind = StoredValue::Kind;

constexpr std::uint8_t currencyScale = 4;
constexpr std::size_t guidSize = 16;
// The bytes of a GUID in the order in which they are written.
constexpr std::array<std::uint8_t, guidSize> guidOrder = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};

[[noreturn]] void refuse(const Column& column) {
    throw automation::Error(ado::dbErrCannotConvert, sentence::notConverted, {column.name});
}

StoredValue realOf(double number) {
    // Beyond this there is no whole number to tell.
    const bool whole = std::abs(number) < 9e18;
    return {Kind::real, whole ? static_cast<std::int64_t>(number) : 0, number, {}};
}

StoredValue bytesOf(Bytes bytes) {
    return {Kind::bytes, 0, 0, {reinterpret_cast<const char*>(bytes.data()), bytes.size()}};
}

StoredValue textIn(const std::string& room) { return {Kind::text, 0, 0, room}; }

// As a number when a double holds it exactly.
StoredValue decimalOf(const Decimal& decimal, std::string& room) {
    room = decimal.text();
    const double number = automation::wholeNumber(room);
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
    if (std::string_view(digits.data(), end.ptr) == room) return realOf(number);
    return textIn(room);
}

StoredValue guidOf(Bytes bytes, std::string& room) {
    static constexpr char digits[] = "0123456789ABCDEF";
    room = "{";
    for (std::size_t i = 0; i < guidSize; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) room += '-';
        const Byte byte = bytes[guidOrder[i]];
        room += digits[byte >> 4];
        room += digits[byte & 0xF];
    }
    room += '}';
    return textIn(room);
}

std::int64_t integerIn(const Column& column, const StoredValue& value, std::int64_t least, std::int64_t most) {
    double number = value.real;
    if (value.kind == Kind::text) {
        try {
            number = automation::wholeNumber(std::string(value.text));
        } catch (const automation::Error&) {
            refuse(column);
        }
    } else if (value.kind == Kind::bytes) {
        refuse(column);
    }
    const double rounded = std::nearbyint(number);
    if (!(rounded >= static_cast<double>(least) && rounded <= static_cast<double>(most))) refuse(column);
    return value.kind == Kind::integer ? value.integer : static_cast<std::int64_t>(rounded);
}

double realIn(const Column& column, const StoredValue& value) {
    if (value.isNumber()) return value.real;
    if (value.kind == Kind::bytes) refuse(column);
    try {
        return automation::wholeNumber(std::string(value.text));
    } catch (const automation::Error&) {
        refuse(column);
    }
}

template <class Integer>
void storeInteger(Buffer& to, const Column& column, const StoredValue& value) {
    using Limits = std::numeric_limits<Integer>;
    const std::int64_t number = integerIn(column, value, Limits::min(), Limits::max());
    for (std::size_t i = 0; i < sizeof(Integer); ++i) to.push_back(static_cast<Byte>(number >> i * 8));
}

void storeReal(Buffer& to, double number) {
    Byte bytes[8];
    put64(bytes, std::bit_cast<std::uint64_t>(number));
    append(to, bytes);
}

void storeSingle(Buffer& to, const Column& column, double number) {
    const auto single = static_cast<float>(number);
    if (std::isinf(single) && !std::isinf(number)) refuse(column);
    append32(to, std::bit_cast<std::uint32_t>(single));
}

Decimal decimalIn(const Column& column, const StoredValue& value, std::uint8_t scale) {
    std::array<char, 32> digits{};
    std::string_view text = value.text;
    if (value.isNumber()) {
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value.real);
        text = {digits.data(), end.ptr};
    }
    const auto decimal = Decimal::of(text, scale);
    if (value.kind == Kind::bytes || !decimal) refuse(column);
    return *decimal;
}

void storeCurrency(Buffer& to, const Column& column, const StoredValue& value) {
    const auto number = decimalIn(column, value, currencyScale).number();
    if (!number) refuse(column);
    Byte bytes[8];
    put64(bytes, static_cast<std::uint64_t>(*number));
    append(to, bytes);
}

void storeDecimal(Buffer& to, const Column& column, const StoredValue& value) {
    const Decimal decimal = decimalIn(column, value, column.scale);
    if (decimal.digits() > column.precision) refuse(column);
    Byte bytes[Decimal::size];
    decimal.store(bytes);
    append(to, bytes);
}

void storeGuid(Buffer& to, const Column& column, const StoredValue& value) {
    std::string digits;
    for (const char c : value.text) {
        if (c != '{' && c != '}' && c != '-') digits += c;
    }
    if (digits.size() != guidSize * 2) refuse(column);
    Byte bytes[guidSize];
    for (std::size_t i = 0; i < guidSize; ++i) {
        const char* const at = digits.data() + i * 2;
        if (std::from_chars(at, at + 2, bytes[guidOrder[i]], 16).ptr != at + 2) refuse(column);
    }
    append(to, bytes);
}

void storeTextIn(Buffer& to, const Column& column, const StoredValue& value) {
    std::string room;
    const std::size_t start = to.size();
    const std::string_view text = ado::shownText(value, room);
    storeText(to, text, column.isPacked && !column.isFixed);
    if (column.type == ColumnType::memo) return;
    Buffer units;
    if (to.size() - start > column.length / 2U) appendUnits(units, Bytes(to).subspan(start));
    if (units.size() > column.length) {
        throw automation::Error(ado::dbErrCannotConvert, sentence::tooLong,
                                {column.name, std::to_string(column.length / 2)});
    }
    if (column.isFixed) to.resize(start + column.length);
}

void storeBytes(Buffer& to, const Column& column, const StoredValue& value) {
    if (value.kind != Kind::bytes && value.kind != Kind::text) refuse(column);
    if (column.type == ColumnType::binary && value.text.size() > column.length) refuse(column);
    append(to, {reinterpret_cast<const Byte*>(value.text.data()), value.text.size()});
}

}  // namespace

StoredValue valueOf(const Column& column, StoredColumn stored, std::string& room) {
    if (!stored) return {};
    const Byte* const at = stored->data();
    switch (column.type) {
        case ColumnType::yesNo: return StoredValue::of(stored->empty() ? 0 : 1);
        case ColumnType::byte: return StoredValue::of(at[0]);
        case ColumnType::integer: return StoredValue::of(static_cast<std::int16_t>(get16(at)));
        case ColumnType::longInteger: return StoredValue::of(static_cast<std::int32_t>(get32(at)));
        case ColumnType::currency:
            return decimalOf(Decimal::of(static_cast<std::int64_t>(get64(at)), currencyScale), room);
        case ColumnType::single: return realOf(std::bit_cast<float>(get32(at)));
        case ColumnType::real:
        case ColumnType::date: return realOf(std::bit_cast<double>(get64(at)));
        case ColumnType::decimal: return decimalOf(Decimal::read(at, column.scale), room);
        case ColumnType::guid: return guidOf(*stored, room);
        case ColumnType::text:
        case ColumnType::memo:
            room.clear();
            appendText(room, *stored);
            return textIn(room);
        default: return bytesOf(*stored);
    }
}

bool store(Buffer& to, const Column& column, const StoredValue& value) {
    if (column.type == ColumnType::yesNo) {
        if (value.isTrue()) to.push_back(yesByte);
        return true;
    }
    if (value.kind == Kind::null) return false;
    switch (column.type) {
        case ColumnType::byte: storeInteger<std::uint8_t>(to, column, value); break;
        case ColumnType::integer: storeInteger<std::int16_t>(to, column, value); break;
        case ColumnType::longInteger: storeInteger<std::int32_t>(to, column, value); break;
        case ColumnType::currency: storeCurrency(to, column, value); break;
        case ColumnType::single: storeSingle(to, column, realIn(column, value)); break;
        case ColumnType::real:
        case ColumnType::date: storeReal(to, realIn(column, value)); break;
        case ColumnType::decimal: storeDecimal(to, column, value); break;
        case ColumnType::guid: storeGuid(to, column, value); break;
        case ColumnType::text:
        case ColumnType::memo: storeTextIn(to, column, value); break;
        default: storeBytes(to, column, value);
    }
    return true;
}

}  // namespace hx::jet
