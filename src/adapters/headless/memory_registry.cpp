// SPDX-License-Identifier: MIT
#include "adapters/headless/memory_registry.h"

#include "automation/text.h"

namespace hx::headless {

using automation::Variant;

std::string MemoryRegistry::readString(std::string_view key, std::string_view value, std::string_view fallback) const {
    const Variant* const found = find(key, value);
    return found != nullptr && found->isString() ? found->asString() : std::string(fallback);
}

std::int32_t MemoryRegistry::readNumber(std::string_view key, std::string_view value, std::int32_t fallback) const {
    const Variant* const found = find(key, value);
    return found != nullptr && found->isNumber() ? found->asInt32() : fallback;
}

void MemoryRegistry::writeString(std::string_view key, std::string_view value, std::string_view data) {
    store(key, value, Variant(data));
}

void MemoryRegistry::writeNumber(std::string_view key, std::string_view value, std::int32_t data) {
    store(key, value, Variant(data));
}

MemoryRegistry::Place MemoryRegistry::placeOf(std::string_view key, std::string_view value) {
    while (key.starts_with('\\')) key.remove_prefix(1);
    while (key.ends_with('\\')) key.remove_suffix(1);
    return {automation::foldCase(key), automation::foldCase(value)};
}

const Variant* MemoryRegistry::find(std::string_view key, std::string_view value) const {
    ++reads_;
    if (error_) throw *error_;
    const auto found = values_.find(placeOf(key, value));
    return found == values_.end() ? nullptr : &found->second;
}

void MemoryRegistry::store(std::string_view key, std::string_view value, Variant data) {
    if (error_) throw *error_;
    values_[placeOf(key, value)] = std::move(data);
}

}  // namespace hx::headless
