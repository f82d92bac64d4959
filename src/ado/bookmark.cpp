// SPDX-License-Identifier: MIT
#include "ado/bookmark.h"

#include <cmath>

#include "ado/errors.h"
#include "automation/convert.h"

namespace hx::ado {

namespace {
constexpr double largestExact = 9007199254740992.0;  // 2^53: up to here every whole number is a double
}

automation::Variant Bookmark::toVariant() const {
    if (!key_) return automation::Null{};
    return static_cast<double>(*key_);
}

Bookmark Bookmark::fromVariant(const automation::Variant& value) {
    if (value.isNull() || value.isEmpty()) return {};
    const double number = automation::toDouble(value);
    if (number != std::floor(number) || std::abs(number) > largestExact) {
        throwInvalidArgument("The value is not a bookmark.");
    }
    return Bookmark(static_cast<Key>(number));
}

}  // namespace hx::ado
