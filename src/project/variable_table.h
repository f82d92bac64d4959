// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ado/row_keys.h"
#include "automation/text_list.h"
#include "automation/word_filter.h"
#include "project/reader.h"

namespace hx::project {

/// The variable list of a project as it was at one moment, with the number of recipes that use each variable. Made for
/// a million of them: a few pieces of memory hold all. Variables are numbered in the order of their rows.
class VariableTable {
  public:
    enum class Column : std::uint8_t { name, type, comment, uses };
    static constexpr std::size_t texts = 3;  ///< columns of text, which come first

    VariableTable() = default;
    /// What the reader throws is passed on.
    explicit VariableTable(Reader& reader);

    [[nodiscard]] std::size_t size() const noexcept { return keys_.size(); }
    /// By which its row is changed.
    [[nodiscard]] ado::Key key(std::uint32_t number) const { return keys_[number]; }
    [[nodiscard]] std::string_view text(std::uint32_t number, Column column) const {
        return texts_[number * texts + static_cast<std::size_t>(column)];
    }
    /// How many recipes name it, in their own columns or their members.
    [[nodiscard]] std::uint32_t uses(std::uint32_t number) const { return uses_[number]; }
    /// Ignoring case.
    [[nodiscard]] std::optional<std::uint32_t> find(std::string_view name) const;

    /// Which of them are wanted, and in which order.
    struct Wish {
        std::array<automation::WordFilter, texts> words;  ///< of each column
        std::optional<std::uint32_t> uses;                ///< exactly so many
        Column order = Column::name;
        bool descending = false;

        [[nodiscard]] bool isAll() const noexcept;
    };
    [[nodiscard]] std::vector<std::uint32_t> arranged(const Wish& wish) const;

  private:
    void readList(Reader& reader);
    void countUses(Reader& reader);
    [[nodiscard]] bool holds(const Wish& wish, std::uint32_t number, std::string& folded) const;
    void order(std::vector<std::uint32_t>& numbers, Column column, bool descending) const;

    std::vector<ado::Key> keys_;
    automation::TextList texts_;  // name, type and comment of each
    automation::TextList foldedNames_;
    std::vector<std::uint32_t> byName_;
    std::vector<std::uint32_t> uses_;
};

}  // namespace hx::project
