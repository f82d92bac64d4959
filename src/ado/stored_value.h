// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "automation/convert.h"

namespace hx::ado {

/// A value as the database holds it, whatever the type of its column.
struct StoredValue {
    enum class Kind : std::uint8_t { null, integer, real, text, bytes };

    Kind kind = Kind::null;
    std::int64_t integer = 0;  ///< of a number, that of a real one without its fraction; else 0
    double real = 0;           ///< of a number; else 0
    std::string_view text;     ///< the UTF-8 of a text, the bytes of bytes; else empty. Lent until the next row

    [[nodiscard]] static StoredValue of(std::int64_t number) noexcept {
        return {Kind::integer, number, static_cast<double>(number), {}};
    }
    /// The same value. A whole number in a column of real ones is the same in both forms, as a store may keep it in the
    /// shorter one; what is not a number is the same as itself.
    [[nodiscard]] bool isSameAs(const StoredValue& other) const noexcept {
        if (kind == Kind::integer && other.kind == Kind::integer) return integer == other.integer;
        if (isNumber() && other.isNumber()) return real == other.real || (real != real && other.real != other.real);
        return kind == other.kind && text == other.text;
    }
    [[nodiscard]] bool isNumber() const noexcept { return kind == Kind::integer || kind == Kind::real; }
    [[nodiscard]] bool isTrue() const noexcept { return real != 0; }  ///< as a yes/no column means it
};

/// What a text column shows of a value: also a number that another program has stored there, in digits, for which
/// `room` is lent.
[[nodiscard]] inline std::string_view shownText(const StoredValue& value, std::string& room) {
    if (!value.isNumber()) return value.text;
    room = automation::toText(value.real);
    return room;
}

/// Receives one row, its values in the order in which their columns were asked for.
using StoredRowReceiver = std::function<void(std::span<const StoredValue> values)>;

/// Gives one row after the other: fills in a value for each column, lent until the next call; false at the end.
using StoredRowSource = std::function<bool(std::span<StoredValue> values)>;

}  // namespace hx::ado
