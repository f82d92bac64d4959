// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "ado/provider.h"
#include "project/columns.h"

namespace hx::project {

/// A new text for a column of a row, in place of the one that stands there.
struct Replacement {
    const SearchedColumn* column = nullptr;
    std::int64_t row = 0;  ///< its ID
    std::string before, after;
};

/// Stores all of them in one transaction. Throws automation::Error, which names the first that is not possible, and has
/// changed nothing then: another has changed the text, it is too long, a name would be there twice or empty.
void replaceTexts(ado::Session& session, std::span<const Replacement> replacements);

}  // namespace hx::project
