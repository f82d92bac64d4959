// SPDX-License-Identifier: MIT
#include "hosting/lent_services.h"

#include <array>
#include <optional>

#include "automation/convert.h"

namespace hx::hosting {

using automation::toText;
using automation::Variant;

namespace {

// Nothing for a user who has cancelled.
std::optional<std::string> chosenBy(automation::Dispatch& selection, const LentServices& lent, host::WindowHandle owner,
                                    const std::string& current) {
    const Variant chosen = selection.get("Choose", std::array<Variant, 2>{lent.known(owner), current});
    if (chosen.isEmpty() || chosen.isNull()) return std::nullopt;
    return toText(chosen);
}

}  // namespace

Variant readIfThere(automation::Dispatch& object, std::string_view name) {
    try {
        return object.get(name);
    } catch (const automation::Error& error) {
        if (error.number() != automation::errUnknownName) throw;
        return {};
    }
}

automation::ObjectRef objectIfThere(automation::Dispatch& object, std::string_view name) {
    const Variant found = readIfThere(object, name);
    return found.isObject() ? found.asObject() : nullptr;
}

LentServices LentServices::of(const automation::ObjectRef& services) {
    if (!services) return {};
    return {.registry = objectIfThere(*services, "Registry"),
            .iniFile = objectIfThere(*services, "IniFile"),
            .itemSelection = objectIfThere(*services, "ItemSelection"),
            .pathSelection = objectIfThere(*services, "PathSelection"),
            .multiItems = objectIfThere(*services, "HXMultiItems"),
            .windowOf = {}};
}

std::string LentRegistry::readString(std::string_view key, std::string_view value, std::string_view fallback) const {
    if (!lent_.registry) return own_.readString(key, value, fallback);
    return toText(lent_.registry->get("ReadString", std::array<Variant, 3>{key, value, fallback}));
}

std::int32_t LentRegistry::readNumber(std::string_view key, std::string_view value, std::int32_t fallback) const {
    if (!lent_.registry) return own_.readNumber(key, value, fallback);
    return automation::toInt32(lent_.registry->get("ReadNumber", std::array<Variant, 3>{key, value, fallback}));
}

void LentRegistry::writeString(std::string_view key, std::string_view value, std::string_view data) {
    if (!lent_.registry) return own_.writeString(key, value, data);
    lent_.registry->get("WriteString", std::array<Variant, 3>{key, value, data});
}

void LentRegistry::writeNumber(std::string_view key, std::string_view value, std::int32_t data) {
    if (!lent_.registry) return own_.writeNumber(key, value, data);
    lent_.registry->get("WriteNumber", std::array<Variant, 3>{key, value, data});
}

std::string LentIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                              const std::string& path) const {
    if (!lent_.iniFile) return own_.read(section, key, fallback, path);
    return toText(lent_.iniFile->get("Read", std::array<Variant, 4>{section, key, fallback, path}));
}

void LentIniFile::writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) {
    if (!lent_.iniFile) return own_.writeAll(section, texts, path);
    for (const auto& [key, text] : texts) {
        lent_.iniFile->get("Write", std::array<Variant, 4>{section, key, text, path});
    }
}

std::string LentItemSelection::choose(host::WindowHandle owner, const std::string& current) {
    if (!lent_.itemSelection) return own_.choose(owner, current);
    return chosenBy(*lent_.itemSelection, lent_, owner, current).value_or("");
}

std::string LentPathSelection::choose(host::WindowHandle owner, const std::string& current) {
    if (!lent_.pathSelection) return own_.choose(owner, current);
    return chosenBy(*lent_.pathSelection, lent_, owner, current).value_or(current);
}

}  // namespace hx::hosting
