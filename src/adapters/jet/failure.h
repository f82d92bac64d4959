// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "automation/error.h"

namespace hx::jet {

/// What is in the file makes no sense. The description says what, without naming the file.
class Damaged : public automation::Error {
  public:
    /// %1 is the page.
    Damaged(std::uint32_t page, const automation::Sentence& sentence);
};

/// What a rule of a table refuses. The description is not for users: it says "UNIQUE" or "NOT NULL", "constraint
/// failed: " and the columns, as "Table.Column" joined by ", ".
class Refused : public automation::Error {
  public:
    using Error::Error;
};

/// Throws Damaged unless the page is what it must be.
inline void require(bool holds, std::uint32_t page, const automation::Sentence& sentence) {
    if (!holds) throw Damaged(page, sentence);
}

}  // namespace hx::jet
