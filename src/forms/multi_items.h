// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/key_index.h"
#include "automation/text_list.h"
#include "forms/control.h"

namespace hx::forms {

/// The project's variables in a list with check marks. The model holds the checked names; the list itself comes from
/// the host, through the view. Names are compared ignoring case. A checked name that the host's list does not have
/// stays checked until it is unchecked.
class HXMultiItems : public Control {
  public:
    using Control::Control;

    /// Which kinds of items to offer.
    [[nodiscard]] std::int32_t itemFilter() const noexcept { return itemFilter_; }
    void setItemFilter(std::int32_t filter) { assign(itemFilter_, filter, "ItemFilter"); }

    /// The checked names as they were assigned, then those that were checked since, in that order. None: nothing is
    /// checked (never an empty list).
    [[nodiscard]] std::optional<std::vector<std::string>> selectedItems() const;
    /// Replaces the selection, also when the same names are given. Raises `changed` with "SelectedItems".
    void setSelectedItems(const std::optional<std::vector<std::string>>& names);
    /// The same, fit for many names.
    void setSelectedNames(automation::TextList names);

    // --- what a view shows and reports; each change raises `changed` with "SelectedItems" once
    [[nodiscard]] bool isSelected(std::string_view name) const;
    /// The same for a name that is folded already (automation::foldCase).
    [[nodiscard]] bool isSelectedFolded(std::string_view name) const {
        return find(name) != automation::KeyIndex::none;
    }
    [[nodiscard]] std::size_t selectedCount() const noexcept { return count_; }
    /// The checked names that are not among so many others, which are asked for by number and folded; each once.
    using FoldedName = std::function<std::string_view(std::size_t number)>;
    [[nodiscard]] std::vector<std::string> selectedBeside(std::size_t others, const FoldedName& other) const;
    /// Checks or unchecks a name; what is so already stays.
    void select(std::string_view name, bool selected);
    void select(std::span<const std::string> names, bool selected);

    /// ItemFilter, SelectedItems, SelectedCount, IsSelected, Select, Unselect and those of a control. SelectedItems
    /// reads as an object with Count and Item(number from 0), or as empty when nothing is checked; such an object,
    /// empty and null can be assigned.
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    using Id = automation::KeyIndex::Id;
    [[nodiscard]] Id find(std::string_view folded) const;
    bool put(std::string_view name, bool selected);
    template <class Name, class Use>
    void forEachHashed(std::size_t count, const Name& name, Use use) const;
    void index(Id number, std::uint32_t hash);
    void drop(Id number);

    std::int32_t itemFilter_ = 0;
    // By number, in the order in which they were checked; what was unchecked since is still there.
    automation::TextList names_, folded_;
    std::vector<bool> checked_;
    automation::KeyIndex index_;                // of what is checked, the first of equal names
    std::unordered_multimap<Id, Id> repeated_;  // the others, by the first
    std::size_t count_ = 0;
};

}  // namespace hx::forms
