// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hx::lists {

/// How a list of variables is written as CSV.
struct CsvLayout {
    char delimiter = ';';
    int line = 1;                     ///< of the header, or of the first record
    std::size_t begin = 0;            ///< where that line begins in the text, in bytes
    int remarks = 0;                  ///< lines before it that are neither empty nor say the delimiter
    std::vector<std::string> titles;  ///< of the header's columns; empty without a header
    std::size_t columns = 3;          ///< no record has more
    std::optional<std::size_t> name = 0, type = 1, comment = 2;
    std::optional<std::size_t> kind;   ///< tells tags from aliases, comments and what else stands in the list
    std::optional<std::size_t> scope;  ///< where it has one: the program that the tag belongs to
    std::optional<std::pair<std::size_t, std::size_t>> same;  ///< columns of which nobody knows which one is meant
    std::vector<std::vector<std::string>> sample;             ///< the first records behind the header

    [[nodiscard]] bool hasHeader() const noexcept { return !titles.empty(); }
};

/// Recognises it by the beginning of the text: the delimiter that makes most of a header or of even records, and a
/// header by its words in German or English, also behind remarks. Without a header the columns are name, type, comment.
[[nodiscard]] CsvLayout recogniseLayout(const std::string& path, std::string_view beginning, bool isWhole);
/// Throws automation::Error when the header names a column twice or none for the name.
void requireColumns(const CsvLayout& layout, const std::string& path);

/// The line by which a spreadsheet is told the delimiter: "sep=;"
inline constexpr std::string_view separatorMark = "sep=";

}  // namespace hx::lists
