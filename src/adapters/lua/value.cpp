// SPDX-License-Identifier: MIT
#include "adapters/lua/value.h"

#include <algorithm>
#include <iterator>

#include "automation/member_rows.h"

namespace hx::lua {

using automation::Error;
using automation::Variant;

namespace {

/// A list as an object: what members expect that take several names.
class ListObject : public automation::Dispatch {
  public:
    explicit ListObject(const List& items) {
        for (const Value& item : items) items_.push_back(item.toVariant());
    }
    // List by list: a list in a list in a list does not go within the one around it, however many there are.
    ~ListObject() override {
        std::vector<Variant> doomed = std::move(items_);
        while (!doomed.empty()) {
            const Variant item = std::move(doomed.back());
            doomed.pop_back();
            auto* const list = item.isObject() ? dynamic_cast<ListObject*>(item.asObject().get()) : nullptr;
            if (list == nullptr || item.asObject().use_count() > 1) continue;
            std::ranges::move(std::exchange(list->items_, {}), std::back_inserter(doomed));
        }
    }
    ListObject(const ListObject&) = delete;
    ListObject& operator=(const ListObject&) = delete;

    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(items_.size()); }
    [[nodiscard]] Variant item(std::int32_t number) const {
        if (number < 0 || number >= count()) automation::throwBadIndex(className(), Variant(number));
        return items_[static_cast<std::size_t>(number)];
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&ListObject::count>("Count", "The number of items"),
            automation::indexed<&ListObject::item>("Item", "An item, by its number from 0"),
        };
        static constexpr automation::MemberTable table{"List", rows};
        return table;
    }

  private:
    std::vector<Variant> items_;
};

[[noreturn]] void failType(const char* expected) {
    throw Error(automation::errTypeMismatch, std::string("Type mismatch: ") + expected + " expected");
}

}  // namespace

bool Value::isNil() const {
    const auto* variant = std::get_if<Variant>(&content);
    return variant != nullptr && variant->isEmpty();
}

Variant Value::toVariant() const {
    if (const auto* variant = std::get_if<Variant>(&content)) return *variant;
    if (const auto* items = std::get_if<List>(&content)) {
        return automation::ObjectRef(std::make_shared<ListObject>(*items));
    }
    failType("a plain value or a list");
}

const List& Value::list() const {
    if (const auto* items = std::get_if<List>(&content)) return *items;
    failType("a list");
}

const Fields& Value::fields() const {
    static const Fields none;
    if (const auto* fields = std::get_if<Fields>(&content)) return *fields;
    const auto* items = std::get_if<List>(&content);
    if (items != nullptr && items->empty()) return none;
    failType("a table with names");
}

const Function& Value::function() const {
    if (const auto* function = std::get_if<Function>(&content)) return *function;
    failType("a function");
}

}  // namespace hx::lua
