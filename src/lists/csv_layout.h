// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hx::lists {

/// How a list of variables is written as CSV.
struct CsvLayout {
    char delimiter = ';';
    bool hasHeader = false;
    std::size_t columns = 3;  ///< no record has more
    std::size_t name = 0;
    std::optional<std::size_t> type = 1;
    std::optional<std::size_t> comment = 2;
    std::vector<std::string> others;  ///< headings of columns that are not read
};

/// Recognises it by the beginning of the text: the delimiter that makes most of a header or of even records, and a
/// header by its words in German or English. Without a header the columns are name, type, comment. Throws
/// automation::Error when a header names a column twice or none for the name.
[[nodiscard]] CsvLayout recogniseLayout(const std::string& path, std::string_view beginning, bool isWhole);

/// The line by which a spreadsheet is told the delimiter: "sep=;"
inline constexpr std::string_view separatorMark = "sep=";

}  // namespace hx::lists
