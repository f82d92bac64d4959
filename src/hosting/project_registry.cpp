// SPDX-License-Identifier: MIT
#include "hosting/project_registry.h"

#include "automation/text.h"

namespace hx::hosting {

namespace {

constexpr std::string_view folderValue = "Path";

std::string keyOf(std::string_view name) { return std::string(host::registry_keys::projects) + std::string(name); }

}  // namespace

void ProjectRegistry::open(std::string_view name, const std::string& folder) {
    close();
    writeString(keyOf(name), folderValue, folder);
    key_ = keyOf(name);
    folder_ = folder;
}

std::string ProjectRegistry::folderOf(std::string_view name) const { return readString(keyOf(name), folderValue); }

std::string ProjectRegistry::readString(std::string_view key, std::string_view value, std::string_view fallback) const {
    const bool ofOpen = !key_.empty() && automation::equalIgnoreCase(key, key_);
    if (ofOpen && automation::equalIgnoreCase(value, folderValue)) return folder_;
    return registry_.readString(key, value, fallback);
}

std::int32_t ProjectRegistry::readNumber(std::string_view key, std::string_view value, std::int32_t fallback) const {
    return registry_.readNumber(key, value, fallback);
}

void ProjectRegistry::writeString(std::string_view key, std::string_view value, std::string_view data) {
    registry_.writeString(key, value, data);
}

void ProjectRegistry::writeNumber(std::string_view key, std::string_view value, std::int32_t data) {
    registry_.writeNumber(key, value, data);
}

}  // namespace hx::hosting
