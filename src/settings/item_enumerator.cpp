// SPDX-License-Identifier: MIT
#include "settings/item_enumerator.h"

#include "automation/member_rows.h"

namespace hx::settings {

automation::ObjectRef ItemEnumerator::Next() { return next_ < items_.size() ? items_[next_++] : nullptr; }

const automation::MemberTable& ItemEnumerator::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        method<&ItemEnumerator::Next>("Next", "The next entry, or none behind the last"),
        method<&ItemEnumerator::Reset>("Reset", "Starts again before the first entry"),
    };
    static constexpr MemberTable table{"ItemEnumerator", rows};
    return table;
}

}  // namespace hx::settings
