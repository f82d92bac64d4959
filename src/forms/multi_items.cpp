#include "forms/multi_items.h"

#include <algorithm>

#include "automation/member_rows.h"
#include "automation/text.h"

namespace hx::forms {

using automation::Args;
using automation::Error;
using automation::ObjectRef;
using automation::Variant;

std::optional<std::vector<std::string>> HXMultiItems::selectedItems() const {
    if (selected_.empty()) return {};
    std::vector<const Selected*> inOrder;
    inOrder.reserve(selected_.size());
    for (const auto& [key, entry] : selected_) inOrder.push_back(&entry);
    std::ranges::sort(inOrder, {}, &Selected::order);
    std::vector<std::string> names;
    names.reserve(inOrder.size());
    for (const Selected* entry : inOrder) names.push_back(entry->name);
    return names;
}

// A name that is given twice stands in the selection twice: what the caller stored is not thinned out here.
void HXMultiItems::setSelectedItems(const std::optional<std::vector<std::string>>& names) {
    selected_.clear();
    nextOrder_ = 0;
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        selected_.emplace(automation::foldCase(name), Selected{nextOrder_++, name});
    }
    changed.raise("SelectedItems");
}

bool HXMultiItems::isSelected(std::string_view name) const { return selected_.contains(automation::foldCase(name)); }

bool HXMultiItems::put(std::string_view name, bool selected) {
    const std::string key = automation::foldCase(name);
    if (!selected) return selected_.erase(key) > 0;
    if (selected_.contains(key)) return false;
    selected_.emplace(key, Selected{nextOrder_++, std::string(name)});
    return true;
}

void HXMultiItems::select(std::string_view name, bool selected) {
    if (put(name, selected)) changed.raise("SelectedItems");
}

void HXMultiItems::select(std::span<const std::string> names, bool selected) {
    bool any = false;
    for (const std::string& name : names) any |= put(name, selected);
    if (any) changed.raise("SelectedItems");
}

namespace {

/// A list of names as it was when it was read.
class NameList : public automation::Dispatch {
  public:
    explicit NameList(std::vector<std::string> names) : names_(std::move(names)) {}
    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(names_.size()); }
    [[nodiscard]] const std::string& item(std::int32_t number) const {
        if (number < 0 || number >= count()) automation::throwBadIndex(className(), Variant(number));
        return names_[static_cast<std::size_t>(number)];
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&NameList::count>("Count", "The number of names"),
            automation::indexed<&NameList::item>("Item", "A name, by its number from 0"),
        };
        static constexpr automation::MemberTable table{"NameList", rows};
        return table;
    }

  private:
    std::vector<std::string> names_;
};

Variant selectedOf(HXMultiItems& items) {
    auto names = items.selectedItems();
    if (!names) return {};
    return ObjectRef(std::make_shared<NameList>(std::move(*names)));
}

std::vector<std::string> namesOf(automation::Dispatch& list) {
    std::vector<std::string> names;
    const std::int32_t count = automation::toInt32(list.get("Count"));
    for (std::int32_t i = 0; i < count; ++i) {
        const Variant number(i);
        names.push_back(automation::toText(list.get("Item", Args(&number, 1))));
    }
    return names;
}

void assignSelected(HXMultiItems& items, const Variant& value) {
    if (value.isEmpty() || value.isNull()) return items.setSelectedItems({});
    if (!value.isObject()) throw Error(automation::errTypeMismatch, "Type mismatch: a list of names expected");
    const ObjectRef list = value.asObject();
    if (list == nullptr) return items.setSelectedItems({});
    items.setSelectedItems(namesOf(*list));
}

std::int32_t countOf(HXMultiItems& items) { return static_cast<std::int32_t>(items.selectedCount()); }
void check(HXMultiItems& items, const std::string& name) { items.select(name, true); }
void uncheck(HXMultiItems& items, const std::string& name) { items.select(name, false); }

}  // namespace

const automation::MemberTable& HXMultiItems::members() const {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&HXMultiItems::itemFilter, &HXMultiItems::setItemFilter>("ItemFilter",
                                                                          "Which kinds of items to offer"),
        property<&selectedOf, &assignSelected>("SelectedItems", "The checked names: Count and Item; empty for none"),
        property<&countOf>("SelectedCount", "The number of checked names"),
        method<&HXMultiItems::isSelected>("IsSelected", "Whether a name is checked"),
        method<&check>("Select", "Checks a name"),
        method<&uncheck>("Unselect", "Takes the check mark from a name"),
    };
    static const automation::MemberTable table{"HXMultiItems", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
