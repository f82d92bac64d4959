// SPDX-License-Identifier: MIT
#include "forms/multi_items.h"

#include <array>

#include "automation/member_rows.h"
#include "automation/text.h"

namespace hx::forms {

using automation::Args;
using automation::Error;
using automation::KeyIndex;
using automation::ObjectRef;
using automation::Variant;

std::optional<std::vector<std::string>> HXMultiItems::selectedItems() const {
    if (count_ == 0) return {};
    std::vector<std::string> names;
    names.reserve(count_);
    for (std::size_t number = 0; number < names_.size(); ++number) {
        if (checked_[number]) names.emplace_back(names_[number]);
    }
    return names;
}

void HXMultiItems::setSelectedItems(const std::optional<std::vector<std::string>>& names) {
    automation::TextList list;
    for (const std::string& name : names.value_or(std::vector<std::string>())) list.append(name);
    setSelectedNames(std::move(list));
}

// Calls `use` with the number and the hash of each name. What the index keeps of it is fetched before, of several at
// the same time.
template <class Name, class Use>
void HXMultiItems::forEachHashed(std::size_t count, const Name& name, Use use) const {
    constexpr std::size_t ahead = 16;
    std::array<std::uint32_t, ahead> hashes{};
    for (std::size_t i = 0; i < count + ahead; ++i) {
        std::uint32_t& hash = hashes[i % ahead];
        if (i >= ahead) use(i - ahead, hash);
        if (i >= count) continue;
        hash = KeyIndex::hashOf(name(i));
        index_.prefetch(hash);
    }
}

// A name that is given twice stands in the selection twice: what the caller stored is not thinned out here.
void HXMultiItems::setSelectedNames(automation::TextList names) {
    names_ = std::move(names);
    folded_ = {};
    folded_.reserve(names_.size(), names_.bytes());
    checked_.assign(names_.size(), true);
    count_ = names_.size();
    repeated_.clear();
    index_.clear();
    index_.reserve(count_);
    for (std::size_t number = 0; number < count_; ++number) folded_.appendFolded(names_[number]);
    forEachHashed(
        count_, [this](std::size_t number) { return folded_[number]; },
        [this](std::size_t number, std::uint32_t hash) { index(static_cast<Id>(number), hash); });
    changed.raise("SelectedItems");
}

void HXMultiItems::index(Id number, std::uint32_t hash) {
    const std::string_view name = folded_[number];
    const auto same = [&](Id other) { return folded_[other] == name; };
    const Id first = index_.insert(hash, number, same);
    if (first != KeyIndex::none) repeated_.emplace(first, number);
}

HXMultiItems::Id HXMultiItems::find(std::string_view folded) const {
    return index_.find(KeyIndex::hashOf(folded), [&](Id other) { return folded_[other] == folded; });
}

bool HXMultiItems::isSelected(std::string_view name) const { return isSelectedFolded(automation::foldCase(name)); }

std::vector<std::string> HXMultiItems::selectedBeside(std::size_t others, const FoldedName& other) const {
    std::vector<bool> beside = checked_;
    forEachHashed(others, other, [&](std::size_t i, std::uint32_t hash) {
        const std::string_view name = other(i);
        const Id found = index_.find(hash, [&](Id number) { return folded_[number] == name; });
        if (found != KeyIndex::none) beside[found] = false;
    });
    for (const auto& [first, number] : repeated_) beside[number] = false;
    std::vector<std::string> names;
    for (std::size_t number = 0; number < beside.size(); ++number) {
        if (beside[number]) names.emplace_back(names_[number]);
    }
    return names;
}

void HXMultiItems::drop(Id number) {
    checked_[number] = false;
    --count_;
}

bool HXMultiItems::put(std::string_view name, bool selected) {
    const std::string folded = automation::foldCase(name);
    const Id known = find(folded);
    if (selected == (known != KeyIndex::none)) return false;
    if (selected) {
        const auto number = static_cast<Id>(names_.size());
        names_.append(name);
        folded_.append(folded);
        checked_.push_back(true);
        ++count_;
        index(number, KeyIndex::hashOf(folded));
        return true;
    }
    index_.erase(KeyIndex::hashOf(folded), known);
    drop(known);
    const auto [first, end] = repeated_.equal_range(known);
    for (auto again = first; again != end; ++again) drop(again->second);
    repeated_.erase(first, end);
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
    const ObjectRef& list = value.asObject();
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
