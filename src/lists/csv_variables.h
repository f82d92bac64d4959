// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lists/csv_layout.h"
#include "lists/listed_variable.h"

namespace hx::lists {

/// What somebody has chosen of how a list in CSV is read; the rest is recognised.
struct CsvChoice {
    std::string encoding;  ///< empty: recognised; a byte order mark counts more
    std::optional<CsvLayout> layout;
};

/// What the beginning of the list looks like. Throws automation::Error when it cannot be read.
[[nodiscard]] CsvLayout layoutOf(const std::string& path, const std::string& encoding);
/// Reads a list of variables in CSV. Throws automation::Error with line and field of what is wrong.
void readCsvVariables(const std::string& path, const CsvChoice& choice, VariableReceiver& receiver);
/// The same of a text, which is called `title` in what is said of it.
void readCsvText(const std::string& title, std::string_view text, VariableReceiver& receiver);

}  // namespace hx::lists
