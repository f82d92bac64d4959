// SPDX-License-Identifier: MIT
#include "automation/convert.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "automation/error.h"
#include "automation/text.h"

namespace hx::automation {

namespace {

// Outside of these the general format goes over to powers of ten.
constexpr double fixedFrom = 1e-4, fixedTo = 1e15;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Takes digits (and a sign, a point, an exponent where they may stand) off the front of `text`.
class NumberScanner {
  public:
    explicit NumberScanner(std::string_view text) : text_(text) {}

    std::string_view longestNumber() {
        sign();
        const bool digits = takeDigits() + fraction() > 0;
        if (!digits) return {};
        exponent();
        return text_.substr(0, at_);
    }

  private:
    void sign() {
        if (at_ < text_.size() && (text_[at_] == '-' || text_[at_] == '+')) ++at_;
    }
    std::size_t takeDigits() {
        const std::size_t start = at_;
        while (at_ < text_.size() && isDigit(text_[at_])) ++at_;
        return at_ - start;
    }
    std::size_t fraction() {
        if (at_ >= text_.size() || text_[at_] != '.') return 0;
        ++at_;
        return takeDigits();
    }
    void exponent() {
        const std::size_t before = at_;
        if (at_ >= text_.size() || (text_[at_] != 'e' && text_[at_] != 'E')) return;
        ++at_;
        sign();
        if (takeDigits() == 0) at_ = before;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

double parse(std::string_view number) {
    if (!number.empty() && number.front() == '+') number.remove_prefix(1);
    const char* const end = number.data() + number.size();
    double value = 0;
    if (std::from_chars(number.data(), end, value).ec != std::errc::result_out_of_range) return value;
    // Too large, or too small to be told from 0, which a stream does not refuse.
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    if (!(stream >> value)) throw Error(errOverflow, "Overflow");
    return value;
}

template <class Integer>
Integer roundTo(double value) {
    const double rounded = std::nearbyint(value);  // the default rounding mode is half to even
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        throw Error(errOverflow, "Overflow");
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

std::string numberToText(double value, const NumberFormat& format) {
    if (value == 0) return "0";  // never "-0"
    const double size = std::abs(value);
    const bool fixed = size >= fixedFrom && size < fixedTo;
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value,
                                   fixed ? std::chars_format::fixed : std::chars_format::scientific);
    std::string text(buffer, end.ptr);
    if (const auto exponent = text.find('e'); exponent != std::string::npos) text[exponent] = 'E';
    return format.decimalPoint == "," ? replaceAll(text, ".", ",") : text;
}

std::string toText(const Variant& value, const NumberFormat& format) {
    switch (value.type()) {
        case VarType::string: return value.asString();
        case VarType::boolean: return value.asBoolean() ? "True" : "False";
        case VarType::int16: return std::to_string(value.asInt16());
        case VarType::int32: return std::to_string(value.asInt32());
        case VarType::real8: return numberToText(value.asDouble(), format);
        default: return {};
    }
}

double leadingNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == text.npos) return 0;
    NumberScanner scanner(text.substr(start));
    return parse(scanner.longestNumber());
}

constexpr Sentence notANumber{"Type mismatch: \"%1\" is not a number", "Typen unverträglich: \"%1\" ist keine Zahl"};

double wholeNumber(std::string_view text) {
    const std::string_view trimmed = trim(text);
    NumberScanner scanner(trimmed);
    const std::string_view number = scanner.longestNumber();
    if (number.empty() || number.size() != trimmed.size()) {
        throw Error(errTypeMismatch, notANumber, {text});
    }
    return parse(number);
}

std::int16_t roundToInt16(double value) { return roundTo<std::int16_t>(value); }
std::int32_t roundToInt32(double value) { return roundTo<std::int32_t>(value); }

bool toBoolean(const Variant& value) {
    if (value.isString()) {
        if (equalIgnoreCase(value.asString(), "true")) return true;
        if (equalIgnoreCase(value.asString(), "false") || value.asString().empty()) return false;
    }
    return toDouble(value) != 0;
}

std::int16_t toInt16(const Variant& value) { return roundToInt16(toDouble(value)); }
std::int32_t toInt32(const Variant& value) {
    return value.type() == VarType::int32 ? value.asInt32() : roundToInt32(toDouble(value));
}

double toDouble(const Variant& value) {
    switch (value.type()) {
        case VarType::empty: return 0;
        case VarType::boolean: return value.asBoolean() ? -1 : 0;
        case VarType::int16: return value.asInt16();
        case VarType::int32: return value.asInt32();
        case VarType::real8: return value.asDouble();
        case VarType::string: return wholeNumber(value.asString());
        default: throw Error(errTypeMismatch, "Type mismatch: number expected");
    }
}

}  // namespace hx::automation
