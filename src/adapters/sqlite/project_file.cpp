// SPDX-License-Identifier: MIT
#include "adapters/sqlite/project_file.h"

#include <filesystem>
#include <system_error>

#include "adapters/jet/header.h"
#include "adapters/sqlite/database.h"
#include "adapters/sqlite/jet_project.h"
#include "adapters/sqlite/project_schema.h"
#include "adapters/sqlite/sentences.h"
#include "ado/types.h"
#include "hosting/file_bytes.h"

namespace hx::sqlite {

bool beginsLikeJet(const std::string& path) {
    constexpr std::size_t told = 24;
    const std::string start = hosting::startOf(hosting::fileSystemPath(path), told);
    return jet::fileKindOf({reinterpret_cast<const jet::Byte*>(start.data()), start.size()}) != jet::FileKind::none;
}

bool beginsLikeProject(const std::string& path) {
    constexpr std::string_view mark = "SQLite format 3";
    return hosting::startOf(hosting::fileSystemPath(path), mark.size()) == mark || beginsLikeJet(path);
}

namespace {

namespace fs = std::filesystem;
using automation::Error;

[[noreturn]] void refuseTaken(const std::string& path) { throw Error(ado::dbErrUnspecified, sentence::exists, {path}); }

void requireFree(const std::string& path) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(hosting::fileSystemPath(path), ignored))) refuseTaken(path);
}

}  // namespace

ProjectDraft::ProjectDraft(std::string path) : path_(std::move(path)) {
    requireFree(path_);
    file_.emplace(hosting::fileSystemPath(path_));
    temporary_ = file_->temporary().string();
    journal_ = users_ = file_->temporary();
    journal_ += "-journal";
    users_.replace_extension(".ldb");
}

ProjectDraft::~ProjectDraft() {
    std::error_code ignored;
    fs::remove(journal_, ignored);
    fs::remove(users_, ignored);
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
    if (!file_->publishNew()) refuseTaken(path_);
}

void createProject(const std::string& path, ProjectFormat format) {
    ProjectDraft draft(path);
    if (format == ProjectFormat::jet) fillJetProject(draft.temporaryPath());
    else draft.createTables();
    draft.publish();
}

}  // namespace hx::sqlite
