// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_storage.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <sqlite3.h>
#include <vector>

#include "adapters/sqlite/sqlite_error.h"

namespace hx::sqlite {

namespace {

int levelOf(jet::File::Lock lock) {
    switch (lock) {
        case jet::File::Lock::none: return SQLITE_LOCK_NONE;
        case jet::File::Lock::shared: return SQLITE_LOCK_SHARED;
        case jet::File::Lock::reserved: return SQLITE_LOCK_RESERVED;
        case jet::File::Lock::exclusive: return SQLITE_LOCK_EXCLUSIVE;
    }
    return SQLITE_LOCK_NONE;
}

/// A file of SQLite's system layer, whose object it makes in room of ours.
class SystemFile : public jet::File {
  public:
    SystemFile(JetStorage& storage, sqlite3_vfs& vfs, const std::string& path, int flags)
        : storage_(storage),
          name_(sqlite3_create_filename(path.c_str(), "", "", 0, nullptr)),
          room_((static_cast<std::size_t>(vfs.szOsFile) + sizeof(std::max_align_t)) / sizeof(std::max_align_t)) {
        if (name_ == nullptr) throw std::bad_alloc();
        file_ = reinterpret_cast<sqlite3_file*>(room_.data());
        code_ = vfs.xOpen(&vfs, name_, file_, flags, &openedWith_);
    }
    ~SystemFile() override {
        if (file_->pMethods != nullptr) file_->pMethods->xClose(file_);
        sqlite3_free_filename(name_);
    }
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    [[nodiscard]] int code() const noexcept { return code_; }

    void read(std::uint64_t offset, std::span<jet::Byte> bytes) override {
        const int code = methods().xRead(file_, bytes.data(), static_cast<int>(bytes.size()), at(offset));
        if (code != SQLITE_IOERR_SHORT_READ) storage_.check(code);
    }
    void write(std::uint64_t offset, jet::Bytes bytes) override {
        constexpr std::size_t most = 1 << 16;  // the system layer writes no more at a time
        for (; !bytes.empty(); offset += most) {
            const jet::Bytes part = bytes.first(std::min(most, bytes.size()));
            storage_.check(methods().xWrite(file_, part.data(), static_cast<int>(part.size()), at(offset)));
            bytes = bytes.subspan(part.size());
        }
    }
    void truncate(std::uint64_t size) override { storage_.check(methods().xTruncate(file_, at(size))); }
    void sync() override { storage_.check(methods().xSync(file_, SQLITE_SYNC_NORMAL)); }
    std::uint64_t size() override {
        sqlite3_int64 size = 0;
        storage_.check(methods().xFileSize(file_, &size));
        return static_cast<std::uint64_t>(size);
    }

    void lock(Lock lock) override {
        for (int waits = 0; !tryLock(lock); ++waits) {
            if (!storage_.wait(waits)) storage_.check(SQLITE_BUSY);
        }
    }
    bool tryLock(Lock lock) override {
        const int code = methods().xLock(file_, levelOf(lock));
        if (code == SQLITE_BUSY) return false;
        storage_.check(code);
        return true;
    }
    void unlock(Lock lock) noexcept override { (void)methods().xUnlock(file_, levelOf(lock)); }
    bool isReserved() override {
        int reserved = 0;
        storage_.check(methods().xCheckReservedLock(file_, &reserved));
        return reserved != 0;
    }
    [[nodiscard]] bool isReadOnly() const noexcept override { return (openedWith_ & SQLITE_OPEN_READONLY) != 0; }

  private:
    static sqlite3_int64 at(std::uint64_t offset) { return static_cast<sqlite3_int64>(offset); }
    [[nodiscard]] const sqlite3_io_methods& methods() const noexcept { return *file_->pMethods; }

    JetStorage& storage_;
    const char* name_;
    std::vector<std::max_align_t> room_;
    sqlite3_file* file_ = nullptr;
    int openedWith_ = 0;
    int code_ = SQLITE_OK;
};

int flagsOf(jet::Storage::Kind kind) {
    switch (kind) {
        case jet::Storage::Kind::project: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_MAIN_DB;
        case jet::Storage::Kind::journal: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MAIN_JOURNAL;
        case jet::Storage::Kind::users: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MAIN_DB;
    }
    return 0;
}

}  // namespace

JetStorage::JetStorage(std::string path, LockWait& wait, automation::Language language)
    : path_(std::move(path)), wait_(wait), language_(language), vfs_(sqlite3_vfs_find(nullptr)) {}

void JetStorage::check(int code) const {
    if (code != SQLITE_OK) throw errorOf(code, sqlite3_errstr(code), path_, language_);
}

std::unique_ptr<jet::File> JetStorage::open(Kind kind, const std::string& path) {
    auto file = std::make_unique<SystemFile>(*this, *vfs_, path, flagsOf(kind));
    if (file->code() != SQLITE_OK && kind == Kind::project) {
        file = std::make_unique<SystemFile>(*this, *vfs_, path, SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB);
    }
    if (kind == Kind::users && (file->code() != SQLITE_OK || file->isReadOnly())) return nullptr;
    check(file->code());
    return file;
}

bool JetStorage::exists(const std::string& path) {
    int exists = 0;
    check(vfs_->xAccess(vfs_, path.c_str(), SQLITE_ACCESS_EXISTS, &exists));
    return exists != 0;
}

void JetStorage::remove(const std::string& path) {
    const int code = vfs_->xDelete(vfs_, path.c_str(), 1);
    if (code != SQLITE_IOERR_DELETE_NOENT) check(code);
}

// On Windows an open file cannot be removed, nor one that another has opened meanwhile.
void JetStorage::removeOpen(std::unique_ptr<jet::File> file, const std::string& path) {
    constexpr bool onWindows = std::filesystem::path::preferred_separator != '/';
    if (onWindows) file.reset();
    remove(path);
}

bool JetStorage::wait(int earlierWaits) { return wait_.again(earlierWaits); }

}  // namespace hx::sqlite
