// SPDX-License-Identifier: MIT
#include "adapters/jet/user_file.h"

#include <algorithm>
#include <string_view>

namespace hx::jet {

namespace {

constexpr std::size_t recordSize = 64, nameSize = 32;
constexpr std::size_t counterAt = 56;  // behind our name, where others see none
constexpr std::string_view ourName = "HXRecipeEditor";

std::string pathOf(const Storage& storage) {
    const std::string& path = storage.path();
    const auto dot = path.find_last_of("./\\");
    const bool extension = dot != std::string::npos && path[dot] == '.';
    return (extension ? path.substr(0, dot) : path) + ".ldb";
}

// As a power failure may leave it: of what was written last to the file it keeps what it likes.
bool isNobodys(const Byte* record) {
    return std::all_of(record, record + counterAt, [](Byte byte) { return byte == 0; });
}

bool isOurs(const Byte* record) {
    return std::equal(ourName.begin(), ourName.end(), reinterpret_cast<const char*>(record) + nameSize);
}

}  // namespace

UserFile::UserFile(Storage& storage, std::string path, std::unique_ptr<File> file)
    : storage_(storage), path_(std::move(path)), file_(std::move(file)) {}

std::string UserFile::otherUser(Storage& storage) {
    const std::string path = pathOf(storage);
    if (!storage.exists(path)) return {};
    const auto file = storage.open(Storage::Kind::users, path);
    if (!file || file->size() == 0) return {};
    Byte record[recordSize];
    file->read(0, record);
    if (isOurs(record) || isNobodys(record)) return {};
    const auto* const name = reinterpret_cast<const char*>(record);
    const std::string computer(name, std::find(name, name + nameSize, '\0'));
    return computer.empty() ? "?" : computer;
}

std::unique_ptr<UserFile> UserFile::open(Storage& storage) {
    const std::string path = pathOf(storage);
    for (int tries = 0; tries < 10; ++tries) {
        auto file = storage.open(Storage::Kind::users, path);
        if (!file || !file->tryLock(File::Lock::shared)) return nullptr;
        Byte record[recordSize] = {};
        if (file->size() > 0) file->read(0, record);
        if (isNobodys(record)) {
            std::copy(ourName.begin(), ourName.end(), record);
            std::copy(ourName.begin(), ourName.end(), record + nameSize);
            file->write(0, record);
        }
        if (!isOurs(record)) return nullptr;
        if (!storage.exists(path)) continue;  // the last other user has just taken it away
        return std::unique_ptr<UserFile>(new UserFile(storage, path, std::move(file)));
    }
    return nullptr;
}

UserFile::~UserFile() {
    try {
        if (file_->tryLock(File::Lock::exclusive)) storage_.removeOpen(std::move(file_), path_);
    } catch (const std::exception&) {
        // It stays, as after a crash: the next program of ours takes it.
    }
}

std::int64_t UserFile::changes() {
    Byte counter[8];
    file_->read(counterAt, counter);
    return static_cast<std::int64_t>(get64(counter) >> 1);
}

void UserFile::countChange() {
    Byte counter[8];
    put64(counter, static_cast<std::uint64_t>(changes() + 1) << 1);
    file_->write(counterAt, counter);
}

}  // namespace hx::jet
