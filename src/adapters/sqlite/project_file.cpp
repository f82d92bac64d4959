#include "adapters/sqlite/project_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "adapters/sqlite/database.h"
#include "adapters/sqlite/project_schema.h"
#include "ado/types.h"

namespace hx::sqlite {

namespace {

namespace fs = std::filesystem;
using automation::Error;

[[noreturn]] void refuseTaken(const std::string& path) {
    throw Error(ado::dbErrUnspecified, "The file '" + path + "' exists already.");
}

[[noreturn]] void refuse(const std::string& path, int code) {
    throw Error(ado::dbErrUnspecified,
                "The file '" + path + "' cannot be made: " + std::generic_category().message(code) + ".");
}

std::string makeTemporary(const std::string& path) {
    std::string name = path + ".new-XXXXXX";
    const int file = mkstemp(name.data());
    if (file < 0) refuse(path, errno);
    // mkstemp grants the owner alone; a project has the permissions of any new file.
    const mode_t mask = umask(0);
    umask(mask);
    (void)fchmod(file, 0666 & ~mask);
    ::close(file);
    return name;
}

// The name is given without ever replacing a file. Not every file system can rename so; those that cannot have hard
// links.
int giveName(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    if (link(from.c_str(), to.c_str()) != 0) return errno;
    unlink(from.c_str());
    return 0;
}

void syncFile(const std::string& path) {
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
    const bool synced = file >= 0 && fsync(file) == 0;
    const int code = errno;
    if (file >= 0) close(file);
    if (!synced) refuse(path, code);
}

void syncFolder(const std::string& path) {
    const fs::path parent = fs::absolute(path).parent_path();
    const int folder = open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    (void)fsync(folder);
    close(folder);
}

}  // namespace

ProjectDraft::ProjectDraft(std::string path) : path_(std::move(path)) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(path_, ignored))) refuseTaken(path_);
    temporary_ = makeTemporary(path_);
}

ProjectDraft::~ProjectDraft() {
    if (temporary_.empty()) return;
    unlink(temporary_.c_str());
    unlink((temporary_ + "-journal").c_str());
}

void ProjectDraft::createTables(bool withIndexes) {
    Database database(temporary_);
    database.execute("BEGIN;" + projectTables() + (withIndexes ? projectIndexes() : "") + "COMMIT;");
}

void ProjectDraft::createIndexes() {
    Database database(temporary_);
    database.execute("BEGIN;" + projectIndexes() + "COMMIT;");
}

void ProjectDraft::publish() {
    syncFile(temporary_);
    const int code = giveName(temporary_, path_);
    if (code == EEXIST) refuseTaken(path_);
    if (code != 0) refuse(path_, code);
    temporary_.clear();
    syncFolder(path_);
}

void createProject(const std::string& path) {
    ProjectDraft draft(path);
    draft.createTables();
    draft.publish();
}

}  // namespace hx::sqlite
