// SPDX-License-Identifier: MIT
#include "automation/dispatch.h"

#include <string>

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::automation {

namespace {

const Member& require(const MemberTable& table, std::string_view name) {
    if (const Member* member = table.find(name)) return *member;
    throw Error(errUnknownName, std::string(table.className) + " has no member \"" + std::string(name) + "\"");
}

}  // namespace

const Member* MemberTable::find(std::string_view name) const noexcept {
    for (const MemberTable* table = this; table != nullptr; table = table->base) {
        for (const Member& row : table->rows) {
            if (row.name.size() == name.size() && equalIgnoreCase(row.name, name)) return &row;
        }
    }
    return nullptr;
}

Variant Dispatch::get(std::string_view name, Args args) { return require(members(), name).get(*this, args); }

void Dispatch::set(std::string_view name, const Variant& value, Args index) {
    const Member& member = require(members(), name);
    if (member.set == nullptr) {
        throw Error(errMemberNotFound,
                    std::string(className()) + "." + std::string(member.name) + " cannot be assigned");
    }
    member.set(*this, index, value);
}

ObjectRef Dispatch::share() {
    if (ObjectRef owned = weak_from_this().lock()) return owned;
    return ObjectRef(ObjectRef{}, this);
}

ObjectRef Dispatch::sharePart(Dispatch& part) { return ObjectRef(share(), &part); }

void throwBadIndex(std::string_view collection, const Variant& index) {
    throw Error(errBadIndex, std::string(collection) + " has no item \"" + toText(index) + "\"");
}

}  // namespace hx::automation
