// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/jet/bytes.h"

namespace hx::jet {

/// A decimal number of up to 28 digits, some of them behind the point.
class Decimal {
  public:
    static constexpr std::size_t size = 17;  ///< bytes in a row: the sign, then sixteen of the number

    [[nodiscard]] static Decimal of(std::int64_t number, std::uint8_t scale);
    /// Digits with a point and an exponent; nothing when it is no number or has too many digits. What has more behind
    /// the point than the scale is rounded.
    [[nodiscard]] static std::optional<Decimal> of(std::string_view text, std::uint8_t scale);
    [[nodiscard]] static Decimal read(const Byte* bytes, std::uint8_t scale);
    void store(Byte* bytes) const;

    /// Without zeros at the end behind the point.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::size_t digits() const { return digits_.size(); }
    /// The number without its point; nothing when it is too large.
    [[nodiscard]] std::optional<std::int64_t> number() const;

  private:
    std::string digits_;  // without zeros in front
    std::uint8_t scale_ = 0;
    bool negative_ = false;
};

}  // namespace hx::jet
