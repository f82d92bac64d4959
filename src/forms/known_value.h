// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <initializer_list>

#include "automation/error.h"

namespace hx::forms {

/// The value itself when it is one of those an enumeration names; by name any number can arrive. Else errOverflow.
template <class E>
E requireKnown(E value, std::initializer_list<E> known) {
    if (std::find(known.begin(), known.end(), value) != known.end()) return value;
    throw automation::Error(automation::errOverflow, "Overflow: no such value");
}

/// A length in twips that cannot be negative. Else errOverflow.
inline double requireLength(double twips) {
    if (twips >= 0) return twips;
    throw automation::Error(automation::errOverflow, "Overflow: a length is not negative");
}

}  // namespace hx::forms
