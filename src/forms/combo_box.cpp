// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"

#include "automation/member_rows.h"
#include "automation/text.h"

namespace hx::forms {

namespace {

constexpr std::int32_t nothing = -1;

}  // namespace

void ComboBox::requireIndex(std::int32_t index) const {
    if (index < 0 || index >= listCount()) automation::throwBadIndex(name(), automation::Variant(index));
}

void ComboBox::clear() {
    if (items_.empty() && text_.empty()) return;
    const auto keep = share();
    items_.clear();
    text_.clear();
    listIndex_ = newIndex_ = nothing;
    changed.raise("List");
}

void ComboBox::addItem(const std::string& text) {
    newIndex_ = listCount();
    items_.push_back({text, 0});
    changed.raise("List");
}

const std::string& ComboBox::list(std::int32_t index) const {
    requireIndex(index);
    return items_[static_cast<std::size_t>(index)].text;
}

std::int32_t ComboBox::itemData(std::int32_t index) const {
    requireIndex(index);
    return items_[static_cast<std::size_t>(index)].data;
}

void ComboBox::setItemData(std::int32_t index, std::int32_t data) {
    requireIndex(index);
    items_[static_cast<std::size_t>(index)].data = data;
}

void ComboBox::take(std::int32_t index, const std::string& text) {
    listIndex_ = index;
    text_ = text;
    changed.raise("ListIndex");
}

void ComboBox::setListIndex(std::int32_t index) {
    if (index != nothing) requireIndex(index);
    if (listIndex_ == index) return;
    const auto keep = share();
    take(index, index == nothing ? std::string() : list(index));
    clickEvent.raise();
}

// An entry of exactly this text goes before one that differs in case.
std::int32_t ComboBox::find(std::string_view text) const {
    std::int32_t similar = nothing;
    for (std::int32_t i = 0; i < listCount(); ++i) {
        const std::string& entry = items_[static_cast<std::size_t>(i)].text;
        if (entry == text) return i;
        if (similar == nothing && automation::equalIgnoreCase(entry, text)) similar = i;
    }
    return similar;
}

void ComboBox::setText(const std::string& text) {
    if (text_ == text) return;
    if (style_ == Style::dropDownList) {
        const std::int32_t index = find(text);
        if (index == nothing && !text.empty()) automation::throwBadIndex(name(), automation::Variant(text));
        return setListIndex(index);
    }
    const auto keep = share();
    listIndex_ = nothing;  // typed text is no entry, whatever it says
    assign(text_, text, "Text");
    changeEvent.raise();
}

const automation::MemberTable& ComboBox::members() const {
    using automation::indexed;
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&ComboBox::text, &ComboBox::setText>("Text", "The selected or typed text"),
        property<&ComboBox::style>("Style", "0 list with a field to type into, 2 list alone"),
        property<&ComboBox::listCount>("ListCount", "The number of entries"),
        property<&ComboBox::listIndex, &ComboBox::setListIndex>("ListIndex", "The selected entry from 0; -1 for none"),
        property<&ComboBox::newIndex>("NewIndex", "The entry that was added last; -1 for none"),
        indexed<&ComboBox::list>("List", "The text of an entry, by its number from 0"),
        indexed<&ComboBox::itemData, &ComboBox::setItemData>("ItemData", "The number that an entry carries"),
        method<&ComboBox::addItem>("AddItem", "Adds an entry at the end"),
        method<&ComboBox::clear>("Clear", "Removes all entries"),
    };
    static const automation::MemberTable table{"ComboBox", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
