// SPDX-License-Identifier: MIT
#include "adapters/jet/decimal.h"

#include <algorithm>
#include <charconv>

namespace hx::jet {

namespace {

constexpr std::size_t words = 4;
constexpr std::size_t mostDigits = 38;

std::string withoutZerosInFront(std::string digits) {
    digits.erase(0, digits.find_first_not_of('0'));
    return digits;
}

// Adds one to the last digit.
void roundUp(std::string& digits) {
    auto at = digits.rbegin();
    for (; at != digits.rend() && *at == '9'; ++at) *at = '0';
    if (at == digits.rend()) digits.insert(digits.begin(), '1');
    else ++*at;
}

struct Parts {
    std::string digits;
    int exponent = 0;  // of the last digit
    bool negative = false;
};

std::optional<Parts> partsOf(std::string_view text) {
    Parts parts;
    parts.negative = text.starts_with('-');
    if (parts.negative || text.starts_with('+')) text.remove_prefix(1);
    const auto e = text.find_first_of("eE");
    if (e != std::string_view::npos) {
        std::string_view exponent = text.substr(e + 1);
        if (exponent.starts_with('+')) exponent.remove_prefix(1);
        const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), parts.exponent);
        if (read.ec != std::errc() || read.ptr != exponent.data() + exponent.size()) return std::nullopt;
        text = text.substr(0, e);
    }
    const auto point = std::min(text.find('.'), text.size());
    parts.digits = text.substr(0, point);
    if (point < text.size()) parts.digits += text.substr(point + 1);
    if (point < text.size()) parts.exponent -= static_cast<int>(text.size() - point - 1);
    const bool number = !parts.digits.empty() && parts.digits.find_first_not_of("0123456789") == std::string::npos;
    return number ? std::optional(parts) : std::nullopt;
}

}  // namespace

Decimal Decimal::of(std::int64_t number, std::uint8_t scale) {
    Decimal decimal;
    decimal.scale_ = scale;
    decimal.negative_ = number < 0;
    std::string digits = std::to_string(number);
    if (decimal.negative_) digits.erase(0, 1);
    decimal.digits_ = withoutZerosInFront(std::move(digits));
    return decimal;
}

std::optional<Decimal> Decimal::of(std::string_view text, std::uint8_t scale) {
    auto parts = partsOf(text);
    if (!parts) return std::nullopt;
    const int shift = parts->exponent + scale;
    if (shift > static_cast<int>(mostDigits)) return std::nullopt;
    if (shift >= 0) {
        parts->digits.append(static_cast<std::size_t>(shift), '0');
    } else {
        const auto cut = static_cast<std::size_t>(-shift);
        if (cut > parts->digits.size()) parts->digits = "0";
        else {
            const std::string rest = parts->digits.substr(parts->digits.size() - cut);
            parts->digits.resize(parts->digits.size() - cut);
            if (rest[0] >= '5') roundUp(parts->digits);
        }
    }
    Decimal decimal;
    decimal.scale_ = scale;
    decimal.digits_ = withoutZerosInFront(std::move(parts->digits));
    decimal.negative_ = parts->negative && !decimal.digits_.empty();
    if (decimal.digits_.size() > mostDigits) return std::nullopt;
    return decimal;
}

// Four words, the highest first, each with its lowest byte first.
Decimal Decimal::read(const Byte* bytes, std::uint8_t scale) {
    std::array<std::uint32_t, words> number{};
    for (std::size_t i = 0; i < words; ++i) number[i] = get32(bytes + 1 + i * 4);
    Decimal decimal;
    decimal.scale_ = scale;
    decimal.negative_ = bytes[0] != 0;
    while (std::ranges::any_of(number, [](std::uint32_t word) { return word != 0; })) {
        std::uint64_t rest = 0;
        for (std::uint32_t& word : number) {
            rest = rest << 32 | word;
            word = static_cast<std::uint32_t>(rest / 10);
            rest %= 10;
        }
        decimal.digits_.insert(decimal.digits_.begin(), static_cast<char>('0' + rest));
    }
    return decimal;
}

void Decimal::store(Byte* bytes) const {
    std::array<std::uint32_t, words> number{};
    for (const char digit : digits_) {
        std::uint64_t carry = static_cast<std::uint64_t>(digit - '0');
        for (std::size_t i = words; i-- > 0;) {
            carry += std::uint64_t{number[i]} * 10;
            number[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }
    bytes[0] = negative_ ? 0x80 : 0;
    for (std::size_t i = 0; i < words; ++i) put32(bytes + 1 + i * 4, number[i]);
}

std::string Decimal::text() const {
    std::string text = digits_;
    if (text.size() <= scale_) text.insert(0, scale_ + 1 - text.size(), '0');
    if (scale_ > 0) {
        text.insert(text.size() - scale_, ".");
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return negative_ && !digits_.empty() ? "-" + text : text;
}

std::optional<std::int64_t> Decimal::number() const {
    const std::string text = (negative_ ? "-" : "") + (digits_.empty() ? "0" : digits_);
    std::int64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

}  // namespace hx::jet
