// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "project/reader.h"

namespace hx::exchange {

/// Bytes that are no text, as pairs of hexadecimal digits.
struct Blob {
    std::string digits;
    friend bool operator==(const Blob&, const Blob&) = default;
};

/// What a cell of a table may hold; nothing stands for null.
using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, Blob>;

/// Whether both mean the same: 0 and 0.0 do, so do 1 and true.
[[nodiscard]] bool isSame(const Value& a, const Value& b);

struct Cell {
    std::string column;
    Value value;
    int line = 0;  ///< of the file it comes from
};

/// A member of a recipe. The columns ID, ParentID and ChildID are not among the cells.
struct ContentMember {
    std::optional<std::int64_t> id;
    std::int64_t parent = 0;               ///< used only without a recipe
    std::int64_t child = 0;                ///< 0: a variable
    std::optional<std::string> childName;  ///< none for a variable, and when there is no such recipe
    std::vector<Cell> cells;
    int line = 0;

    [[nodiscard]] bool isSubRecipe() const { return child != 0 || childName.has_value(); }
};

/// A recipe. The column ID is not among the cells.
struct ContentRecipe {
    std::optional<std::int64_t> id;
    std::vector<Cell> cells;
    std::vector<ContentMember> members;
    int line = 0;

    [[nodiscard]] const std::string& name() const;
};

/// Everything in both recipe tables, whether of a project or of an export file.
struct Content {
    std::vector<ContentRecipe> recipes;
    std::vector<ContentMember> orphans;  ///< members whose recipe does not exist
};

[[nodiscard]] const Cell* findCell(const std::vector<Cell>& cells, std::string_view column);

/// Reads the columns of one recipe, not its members.
[[nodiscard]] ContentRecipe readRecipe(project::Reader& reader, std::int64_t id);
/// Reads a project; recipes and members by ID. Errors name the file.
[[nodiscard]] Content readContent(project::Reader& reader);

}  // namespace hx::exchange
