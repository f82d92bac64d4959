// SPDX-License-Identifier: MIT
#include "hosting/ini_text_file.h"

#include "automation/error.h"
#include "hosting/file_bytes.h"
#include "hosting/file_place.h"

namespace hx::hosting {

std::string IniTextFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                              const std::string& path) const {
    const Place place{path, std::string(section), std::string(key)};
    std::optional<std::string> bytes;
    try {
        bytes = readFile(fileSystemPath(path));
        unread_.erase(place);
    } catch (const automation::Error&) {
        unread_.insert(place);
        return std::string(fallback);
    }
    if (!bytes) return std::string(fallback);
    // Comparing the bytes, not a time stamp, notices every change that another program made.
    if (!known_ || known_->path != path || known_->bytes != *bytes) {
        IniDocument document(*bytes);
        known_ = Known{path, std::move(*bytes), std::move(document)};
    }
    return known_->document.text(section, key).value_or(std::string(fallback));
}

void IniTextFile::writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) {
    requireRead(path);
    std::optional<automation::Error> refused;
    changeFile(fileSystemPath(path), [&](std::string_view bytes) {
        IniDocument document(bytes);
        refused = document.setTexts(section, texts);
        return document.bytes();
    });
    if (refused) throw *refused;
}

void IniTextFile::requireRead(const std::string& path) const {
    const auto unread = unread_.lower_bound({path});
    if (unread == unread_.end() || unread->front() != path) return;
    failWith(sentence::notWritten, fileSystemPath(path), sentence::unreadBefore);
}

}  // namespace hx::hosting
