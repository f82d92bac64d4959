// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "automation/text_list.h"
#include "project/columns.h"
#include "project/reader.h"
#include "project/text_pattern.h"

namespace hx::project {

/// Where it is looked.
struct SearchScope {
    bool recipes = true, members = true, variables = true;
};

/// A column of a row in which something was found.
struct TextHit {
    std::int64_t recipe = 0;   ///< 0 in the variable list
    std::int64_t row = 0;      ///< its ID
    std::uint32_t text = 0;    ///< its number
    std::uint8_t column = 0;   ///< number in searchedColumns
    bool ofSubRecipe = false;  ///< a member that is one

    [[nodiscard]] const SearchedColumn& where() const { return searchedColumns[column]; }
};

/// All that was found: recipe by recipe, in each its own columns first, the variable list at the end. Made for
/// millions.
class TextSearch {
  public:
    TextSearch() = default;
    /// What the reader throws is passed on.
    TextSearch(Reader& reader, TextPattern& pattern, SearchScope scope);

    [[nodiscard]] const std::vector<TextHit>& hits() const noexcept { return hits_; }
    [[nodiscard]] std::string_view text(const TextHit& hit) const { return texts_[hit.text]; }
    [[nodiscard]] const std::vector<RecipeEntry>& recipes() const noexcept { return recipes_; }  ///< all, by ID

  private:
    void searchRows(Reader& reader, TextPattern& pattern, Table table);
    void searchMembers(Reader& reader, TextPattern& pattern);
    void add(TextHit hit, std::string_view text);

    std::vector<RecipeEntry> recipes_;
    std::vector<TextHit> hits_;
    automation::TextList texts_;
};

}  // namespace hx::project
