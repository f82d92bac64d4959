#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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

    // --- what a view shows and reports; each change raises `changed` with "SelectedItems" once
    [[nodiscard]] bool isSelected(std::string_view name) const;
    [[nodiscard]] std::size_t selectedCount() const noexcept { return selected_.size(); }
    /// Checks or unchecks a name; what is so already stays.
    void select(std::string_view name, bool selected);
    void select(std::span<const std::string> names, bool selected);

    /// ItemFilter, SelectedItems, SelectedCount, IsSelected, Select, Unselect and those of a control. SelectedItems
    /// reads as an object with Count and Item(number from 0), or as empty when nothing is checked; such an object,
    /// empty and null can be assigned.
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    struct Selected {
        std::size_t order;
        std::string name;
    };
    bool put(std::string_view name, bool selected);

    std::int32_t itemFilter_ = 0;
    std::unordered_multimap<std::string, Selected> selected_;  // by the name without case
    std::size_t nextOrder_ = 0;
};

}  // namespace hx::forms
