// SPDX-License-Identifier: MIT
#include "hosting/registry_file.h"

#include <charconv>
#include <filesystem>
#include <optional>
#include <system_error>

#include "automation/text.h"
#include "hosting/file_bytes.h"

namespace hx::hosting {

namespace {

constexpr std::string_view numberMark = "dword:";

std::string_view sectionName(std::string_view key) {
    while (key.starts_with('\\')) key.remove_prefix(1);
    while (key.ends_with('\\')) key.remove_suffix(1);
    return key;
}

bool isQuoted(std::string_view text) { return text.size() >= 2 && text.front() == '"' && text.back() == '"'; }

bool isNumber(std::string_view text) {
    return automation::equalIgnoreCase(text.substr(0, numberMark.size()), numberMark);
}

std::optional<std::int32_t> wholeNumber(std::string_view text) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

std::string RegistryFile::readString(std::string_view key, std::string_view value, std::string_view fallback) const {
    const std::string text = stored(key, value);
    if (text.empty() || isNumber(text)) return std::string(fallback);
    return isQuoted(text) ? text.substr(1, text.size() - 2) : text;
}

std::int32_t RegistryFile::readNumber(std::string_view key, std::string_view value, std::int32_t fallback) const {
    const std::string text = stored(key, value);
    return wholeNumber(isNumber(text) ? std::string_view(text).substr(numberMark.size()) : text).value_or(fallback);
}

void RegistryFile::writeString(std::string_view key, std::string_view value, std::string_view data) {
    store(key, value, "\"" + std::string(data) + "\"");
}

void RegistryFile::writeNumber(std::string_view key, std::string_view value, std::int32_t data) {
    store(key, value, std::string(numberMark) + std::to_string(data));
}

IniDocument RegistryFile::document() const { return IniDocument(readFile(fileSystemPath(path_)).value_or("")); }

std::string RegistryFile::stored(std::string_view key, std::string_view value) const {
    const auto text = document().text(sectionName(key), value);
    return text ? std::string(automation::trim(*text)) : std::string();
}

void RegistryFile::store(std::string_view key, std::string_view value, const std::string& text) {
    const auto file = fileSystemPath(path_);
    std::error_code ignored;  // a folder that cannot be made shows when the file is written
    if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), ignored);
    changeFile(file, [&](std::string_view bytes) {
        IniDocument changed(bytes);
        changed.setText(sectionName(key), value, text);
        return changed.bytes();
    });
}

}  // namespace hx::hosting
