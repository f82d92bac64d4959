// SPDX-License-Identifier: MIT
#include "plant.h"

#include <array>
#include <stdexcept>

#include "automation/member_rows.h"

namespace hx::com {

const automation::MemberTable& Place::placeMembers() {
    static constexpr automation::Member rows[] = {
        automation::property<&Place::name, &Place::setName>("Name", "A text"),
    };
    static constexpr automation::MemberTable table{"Place", rows};
    return table;
}

automation::Variant Plant::item(const automation::Variant& index) const {
    const auto number = static_cast<std::size_t>(automation::toInt32(index));
    if (number >= items_.size()) automation::throwBadIndex("Item", index);
    return items_[number];
}

void Plant::setItem(const automation::Variant& index, const automation::Variant& value) {
    items_.at(static_cast<std::size_t>(automation::toInt32(index))) = value;
}

void Plant::fail(std::int32_t number) const { throw automation::Error(number, "Refused", "Verweigert: ä"); }

void Plant::failStrangely() const { throw std::runtime_error("strange"); }

automation::Variant Plant::call(const automation::ObjectRef& object, const std::string& name,
                                const automation::Variant& argument) const {
    return object->get(name, std::array{argument});
}

void Plant::assign(const automation::ObjectRef& object, const std::string& name,
                   const automation::Variant& value) const {
    object->set(name, value);
}

std::string Plant::failureOf(const automation::ObjectRef& object, const std::string& name) const {
    try {
        object->get(name);
    } catch (const automation::Error& error) {
        return error.message(automation::Language::english);
    }
    return "none";
}

const automation::MemberTable& Plant::members() const {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Plant::value, &Plant::setValue>("Value", "Anything"),
        property<&Plant::count>("Count", "Always 7"),
        automation::indexed<&Plant::item, &Plant::setItem>("Item", "One of three values"),
        method<&Plant::echo>("Echo", "What it is given"),
        method<&Plant::join>("Join", "Three texts in one"),
        method<&Plant::fail>("Fail", "Ends with an error: number"),
        method<&Plant::failStrangely>("FailStrangely", "Ends with an exception"),
        method<&Plant::call>("Call", "Calls a member: object, name, argument"),
        method<&Plant::assign>("Assign", "Assigns a member: object, name, value"),
        method<&Plant::failureOf>("FailureOf", "How calling a member fails: object, name"),
    };
    static const automation::MemberTable table{"Plant", rows, &placeMembers()};
    return table;
}

}  // namespace hx::com
