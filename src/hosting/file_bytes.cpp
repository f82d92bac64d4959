// SPDX-License-Identifier: MIT
#include "hosting/file_bytes.h"

#include <fstream>

#include "hosting/file_lock.h"
#include "hosting/file_place.h"
#include "hosting/file_replacement.h"

namespace hx::hosting {

namespace fs = std::filesystem;

fs::path fileSystemPath(std::string_view path) { return fs::path(std::u8string(path.begin(), path.end())); }

std::optional<std::string> readFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return std::nullopt;
    if (error) failWith(sentence::notRead, path, error);
    if (!fs::is_regular_file(status)) failWith(sentence::notRead, path, sentence::noFile);
    std::ifstream stream(path, std::ios::binary);
    std::string bytes;
    char block[16384];
    while (stream.read(block, sizeof block) || stream.gcount() > 0) {
        bytes.append(block, static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream.eof()) failWith(sentence::notRead, path);
    return bytes;
}

std::string startOf(const fs::path& path, std::size_t length) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) return {};  // a pipe gives its text only once
    std::ifstream stream(path, std::ios::binary);
    stream.exceptions(std::ios::badbit);  // else want of memory would look like an empty file
    std::string bytes(length, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(length));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

void replaceFile(const fs::path& path, std::string_view bytes, const Disk& disk) {
    FileReplacement replacement(path, disk);
    replacement.write(bytes);
    replacement.publish();
}

void changeFile(const fs::path& path, const FileChange& change, const Disk& disk) {
    const FileLock lock(path, disk);
    const std::string before = readFile(path).value_or("");
    const std::string after = change(before);
    if (after != before) replaceFile(path, after, disk);
}

}  // namespace hx::hosting
