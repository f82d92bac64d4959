// SPDX-License-Identifier: MIT
#include "fault_disk.h"

#include <new>

namespace hx::sqlite {

namespace {

// SQLite's file with the disk that it stands on; the real file follows it in memory.
struct FaultFile {
    sqlite3_file base;
    FaultDisk* disk;
    sqlite3_file* real;
};

FaultFile& of(sqlite3_file* file) { return *reinterpret_cast<FaultFile*>(file); }
FaultDisk& of(sqlite3_vfs* vfs) { return *static_cast<FaultDisk*>(vfs->pAppData); }

int closeFile(sqlite3_file* file) { return of(file).real->pMethods->xClose(of(file).real); }
int readFile(sqlite3_file* file, void* data, int size, sqlite3_int64 offset) {
    return of(file).real->pMethods->xRead(of(file).real, data, size, offset);
}
int writeFile(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset) {
    if (const int fault = of(file).disk->pass(); fault != SQLITE_OK) return fault;
    return of(file).real->pMethods->xWrite(of(file).real, data, size, offset);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    if (const int fault = of(file).disk->pass(); fault != SQLITE_OK) return fault;
    return of(file).real->pMethods->xTruncate(of(file).real, size);
}
int syncFile(sqlite3_file* file, int flags) {
    if (const int fault = of(file).disk->pass(); fault != SQLITE_OK) return fault;
    return of(file).real->pMethods->xSync(of(file).real, flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return of(file).real->pMethods->xFileSize(of(file).real, size);
}
int lockFile(sqlite3_file* file, int level) { return of(file).real->pMethods->xLock(of(file).real, level); }
int unlockFile(sqlite3_file* file, int level) { return of(file).real->pMethods->xUnlock(of(file).real, level); }
int isReserved(sqlite3_file* file, int* reserved) {
    return of(file).real->pMethods->xCheckReservedLock(of(file).real, reserved);
}
int controlFile(sqlite3_file* file, int operation, void* argument) {
    return of(file).real->pMethods->xFileControl(of(file).real, operation, argument);
}
int sectorSize(sqlite3_file* file) { return of(file).real->pMethods->xSectorSize(of(file).real); }
int traits(sqlite3_file* file) { return of(file).real->pMethods->xDeviceCharacteristics(of(file).real); }

constexpr sqlite3_io_methods methods = {1,        closeFile,  readFile,   writeFile,   truncateFile, syncFile, fileSize,
                                        lockFile, unlockFile, isReserved, controlFile, sectorSize,   traits,   nullptr,
                                        nullptr,  nullptr,    nullptr,    nullptr,     nullptr};

int openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    FaultDisk& disk = of(vfs);
    file->pMethods = nullptr;
    if ((flags & SQLITE_OPEN_MAIN_JOURNAL) != 0) {
        if (const int fault = disk.pass(); fault != SQLITE_OK) return fault;
    }
    auto* opened = new (file) FaultFile{{nullptr}, &disk, reinterpret_cast<sqlite3_file*>(&of(file) + 1)};
    const int code = disk.real().xOpen(&disk.real(), name, opened->real, flags, outFlags);
    if (opened->real->pMethods != nullptr) opened->base.pMethods = &methods;
    return code;
}

int deleteFile(sqlite3_vfs* vfs, const char* name, int syncFolder) {
    FaultDisk& disk = of(vfs);
    if (const int fault = disk.pass(); fault != SQLITE_OK) return fault;
    const int code = disk.real().xDelete(&disk.real(), name, 0);
    if (code != SQLITE_OK || syncFolder == 0) return code;
    return disk.pass() == SQLITE_OK ? SQLITE_OK : SQLITE_IOERR_DIR_FSYNC;  // the file is gone all the same
}

}  // namespace

FaultDisk::FaultDisk(Fault fault, int nth) : fault_(fault), nth_(nth), real_(sqlite3_vfs_find(nullptr)), vfs_(*real_) {
    vfs_.zName = "fault-disk";
    vfs_.pNext = nullptr;
    vfs_.pAppData = this;
    vfs_.szOsFile = static_cast<int>(sizeof(FaultFile)) + real_->szOsFile;
    vfs_.xOpen = openFile;
    vfs_.xDelete = deleteFile;
    sqlite3_vfs_register(&vfs_, 1);
}

FaultDisk::~FaultDisk() {
    sqlite3_vfs_unregister(&vfs_);
    sqlite3_vfs_register(real_, 1);
}

int FaultDisk::pass() noexcept {
    ++count_;
    if (count_ < nth_ || (count_ > nth_ && fault_ != Fault::powerCut)) return SQLITE_OK;
    return fault_ == Fault::full ? SQLITE_FULL : SQLITE_IOERR_WRITE;
}

}  // namespace hx::sqlite
