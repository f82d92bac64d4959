// SPDX-License-Identifier: MIT
#include "adapters/com/array.h"

#include "automation/member_rows.h"

namespace hx::com {

const automation::Variant& Array::item(std::int32_t number) const {
    // A negative one is beyond all.
    if (static_cast<std::uint32_t>(number) >= items_.size()) automation::throwBadIndex("Array", number);
    return items_[static_cast<std::size_t>(number)];
}

const automation::MemberTable& Array::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&Array::count>("Count", "How many values there are"),
        automation::indexed<&Array::item>("Item", "A value: number from 0"),
    };
    static constexpr automation::MemberTable table{"Array", rows};
    return table;
}

}  // namespace hx::com
