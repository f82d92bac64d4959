// SPDX-License-Identifier: MIT
#include "settings/init_items.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "settings/item_enumerator.h"

namespace hx::settings {

using automation::Variant;

CInitItem::CInitItem(std::string name, Variant value, std::int16_t index)
    : Name(std::move(name)), val(std::move(value)), Index(index), itms(std::make_shared<CInitItems>()) {}

CInitItem::~CInitItem() = default;

// What others still hold stays whole.
CInitItems::~CInitItems() { takeApart(Taken::ofNobodyElse); }

CInitItem& CInitItems::Add(const std::string& name, const Variant& value, std::int16_t index) {
    if (CInitItem* existing = Item(std::string_view(name))) {
        existing->val = plain(value);
        return *existing;
    }
    items_.push_back(std::make_shared<CInitItem>(name, plain(value), index));
    return *items_.back();
}

void CInitItems::Delete(const Variant& key) {
    CInitItem* const item = Item(key);
    if (item == nullptr) automation::throwBadIndex("CInitItems", key);
    item->itms->Clear();
    std::erase_if(items_, [&](const auto& entry) { return entry.get() == item; });
}

CInitItem* CInitItems::Item(const Variant& key) const {
    if (key.isString()) return Item(std::string_view(key.asString()));
    if (!key.isNumber()) return nullptr;
    const double position = automation::toDouble(key);
    if (!(position >= 1 && position <= Count())) return nullptr;
    return items_[static_cast<std::size_t>(automation::roundToInt32(position)) - 1].get();
}

CInitItem* CInitItems::Item(std::string_view name) const {
    for (const auto& item : items_) {
        if (automation::equalIgnoreCase(item->Name, name)) return item.get();
    }
    return nullptr;
}

void CInitItems::Clear() { takeApart(Taken::all); }

// Entry by entry: what lies below one is taken out of it before it goes. Nothing goes within another, however deep.
void CInitItems::takeApart(Taken taken) {
    std::vector<std::shared_ptr<CInitItem>> items = std::exchange(items_, {});
    while (!items.empty()) {
        const std::shared_ptr<CInitItem> item = std::move(items.back());
        items.pop_back();
        const bool held = item.use_count() > 1 || item->itms.use_count() > 1;
        if (held && taken == Taken::ofNobodyElse) continue;
        std::ranges::move(item->itms->items_, std::back_inserter(items));
        item->itms->items_.clear();
    }
}

const Variant& plain(const Variant& value) {
    if (!value.isObject()) return value;
    throw automation::Error(automation::errTypeMismatch, "Type mismatch: a settings entry holds no object");
}

void visitLeaves(std::string path, CInitItem& entry, const std::function<void(const std::string&, CInitItem&)>& use) {
    struct Level {
        std::vector<std::shared_ptr<CInitItem>> items;
        std::size_t next, pathLength;
    };
    std::vector<Level> levels;
    const auto enter = [&](CInitItem& item) {
        std::vector below(item.itms->begin(), item.itms->end());
        if (below.empty()) use(path, item);
        else levels.push_back({std::move(below), 0, path.size()});
    };
    for (enter(entry); !levels.empty();) {
        Level& level = levels.back();
        path.resize(level.pathLength);
        if (level.next == level.items.size()) {
            levels.pop_back();
            continue;
        }
        const std::shared_ptr<CInitItem> item = level.items[level.next++];
        path.append(".").append(item->Name);
        enter(*item);
    }
}

namespace {

std::string nameOf(CInitItem& item) { return item.Name; }
std::int16_t indexOf(CInitItem& item) { return item.Index; }
void setIndex(CInitItem& item, std::int16_t index) { item.Index = index; }
automation::ObjectRef itemsOf(CInitItem& item) { return item.itms; }
Variant valueOf(CInitItem& item) { return item.val; }
void setValue(CInitItem& item, const Variant& value) { item.val = plain(value); }

automation::ObjectRef addItem(CInitItems& items, const std::string& name, const Variant& value, std::int16_t index) {
    return items.Add(name, value, index).share();
}
automation::ObjectRef itemOf(CInitItems& items, const Variant& key) {
    CInitItem* const item = items.Item(key);
    return item != nullptr ? item->share() : nullptr;
}
automation::ObjectRef enumerate(CInitItems& items) {
    return std::make_shared<ItemEnumerator>(std::vector(items.begin(), items.end()));
}

}  // namespace

const automation::MemberTable& CInitItem::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        property<&nameOf>("Name", "Part of the path; the key among its siblings"),
        property<&valueOf, &setValue>("val", "The value; empty text in an entry that has entries below"),
        property<&indexOf, &setIndex>("Index", "The number given when it was added"),
        property<&itemsOf>("itms", "The entries below"),
    };
    static constexpr MemberTable table{"CInitItem", rows};
    return table;
}

const automation::MemberTable& CInitItems::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        method<&addItem>("Add", "Adds an entry of a name, value and index, or gives the existing one the value"),
        method<&CInitItems::Delete>("Delete", "Removes an entry by name or position from 1"),
        indexed<&itemOf>("Item", "The entry of a name or position from 1; none when it is missing"),
        method<&enumerate>("NewEnum", "An enumerator over the entries in the order in which they were added"),
        property<&CInitItems::Count>("Count", "Number of entries"),
        method<&CInitItems::Clear>("Clear", "Removes all entries"),
    };
    static constexpr MemberTable table{"CInitItems", rows};
    return table;
}

}  // namespace hx::settings
