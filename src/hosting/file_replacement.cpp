// SPDX-License-Identifier: MIT
#include "hosting/file_replacement.h"

#include <random>

#include "hosting/file_bytes.h"
#include "hosting/file_place.h"
#include "hosting/links.h"

namespace hx::hosting {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view mark = ".new";
constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t numberSize = 16;
constexpr int mostNames = 10;  // that are tried

// Long enough that nobody else gives a file such a name.
fs::path temporaryName(const fs::path& target) {
    std::random_device random;
    std::string suffix = ".";
    for (std::size_t i = 0; i < numberSize; ++i) suffix += hexDigits[random() % hexDigits.size()];
    fs::path path = target;
    return path += suffix.append(mark);
}

// The name of temporaryName() for `target` that a file has, or one of the companions that databases give it: NAME-...
// and the same with another extension.
std::string temporaryIn(std::string_view name, std::string_view target) {
    constexpr std::string_view users = ".ldb";
    const std::size_t size = target.size() + 1 + numberSize;
    if (name.size() < size || !name.starts_with(target) || name[target.size()] != '.') return {};
    const std::string_view number = name.substr(target.size() + 1, numberSize), rest = name.substr(size);
    const bool made = number.find_first_not_of(hexDigits) == number.npos &&
                      (rest == users || rest == mark || rest.starts_with(std::string(mark) + '-'));
    return made ? std::string(name.substr(0, size)).append(mark) : std::string();
}

void clearAbandoned(const fs::path& target, const Disk& disk) {
    const fs::path folder = folderOf(target);
    const std::string file = target.filename().string();
    std::error_code ignored;  // what cannot be cleared away is in nobody's way
    for (const std::string& name : disk.names(folder)) {
        const std::string temporary = temporaryIn(name, file);
        if (temporary.empty()) continue;
        const fs::path path = folder / fileSystemPath(temporary);
        disk.removeAbandoned(path);
        if (name != temporary && !fs::exists(path, ignored)) fs::remove(folder / fileSystemPath(name), ignored);
    }
}

void requireWritable(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return;
    if (!fs::status_known(status)) failWith(sentence::notWritten, path, error);
    if (!fs::is_regular_file(status)) failWith(sentence::notWritten, path, sentence::noFile);
    // Replacing a name asks for the folder's permission only, which would overrule a file that is set to read-only.
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) {
        failWith(sentence::notWritten, path, sentence::readOnly);
    }
}

}  // namespace

FileReplacement::FileReplacement(const fs::path& file, const Disk& disk) : disk_(disk), target_(behindLinks(file)) {
    requireWritable(target_);
    clearAbandoned(target_, disk_);
    create();
}

FileReplacement::~FileReplacement() {
    std::error_code ignored;
    if (!published_) fs::remove(temporary_, ignored);
    disk_.close(file_);
}

void FileReplacement::create() {
    auto code = std::make_error_code(std::errc::file_exists);
    for (int i = 0; i < mostNames && code == std::errc::file_exists; ++i) {
        temporary_ = temporaryName(target_);
        code = disk_.create(temporary_, target_, file_);
    }
    if (code) failWith(sentence::notWritten, target_, code);
}

void FileReplacement::write(std::string_view bytes) {
    if (const auto code = disk_.write(file_, bytes)) failWith(sentence::notWritten, target_, code);
}

void FileReplacement::publish() {
    if (const auto code = take(&Disk::rename)) failWith(sentence::notWritten, target_, code);
}

bool FileReplacement::publishNew() {
    const auto code = take(&Disk::renameNew);
    if (code && code != std::errc::file_exists) failWith(sentence::notWritten, target_, code);
    return !code;
}

std::error_code FileReplacement::take(Rename rename) {
    if (const auto code = disk_.sync(file_)) failWith(sentence::notWritten, target_, code);
    if (const auto code = (disk_.*rename)(temporary_, target_)) return code;
    published_ = true;
    if (const auto code = disk_.syncFolder(folderOf(target_))) {
        failWith(sentence::notConfirmed, target_, code);
    }
    return {};
}

}  // namespace hx::hosting
