// SPDX-License-Identifier: MIT
#include "forms/value_items.h"

#include <functional>

#include "automation/convert.h"

namespace hx::forms {

std::size_t ValueItems::Hash::operator()(const automation::Variant& value) const noexcept {
    switch (value.type()) {
        case automation::VarType::string: return std::hash<std::string>{}(value.asString());
        case automation::VarType::object: return std::hash<automation::ObjectRef>{}(value.asObject());
        case automation::VarType::empty:
        case automation::VarType::null: return 0;
        default: return std::hash<double>{}(automation::toDouble(value));
    }
}

void ValueItems::setSource(Source source) {
    source_ = std::move(source);
    clear();
}

void ValueItems::clear() {
    known_.clear();
    changed.raise();
}

std::string ValueItems::display(const automation::Variant& value) const {
    if (!source_) return automation::toText(value);
    if (const auto known = known_.find(value); known != known_.end()) return known->second;
    std::string text = source_(value).value_or(std::string());
    known_.emplace(value, text);
    return text;
}

}  // namespace hx::forms
