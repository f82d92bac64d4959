// SPDX-License-Identifier: MIT
#pragma once

#include "automation/convert.h"
#include "automation/dispatch.h"

namespace hx::forms {

/// The item of a collection that a macro names, by `find`, or numbers, from `first` on; errBadIndex.
template <class Items, class Find>
[[nodiscard]] auto& itemOf(std::string_view collection, const Items& items, const automation::Variant& nameOrNumber,
                           const Find& find, std::int32_t first = 0) {
    if (nameOrNumber.isString()) {
        if (auto* item = find(nameOrNumber.asString())) return *item;
    } else {
        const std::int64_t place = std::int64_t{automation::toInt32(nameOrNumber)} - first;
        if (place >= 0 && place < std::ssize(items)) return *items[static_cast<std::size_t>(place)];
    }
    automation::throwBadIndex(collection, nameOrNumber);
}

}  // namespace hx::forms
