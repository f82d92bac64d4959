// SPDX-License-Identifier: MIT
#include "hosting/open_project.h"

#include <filesystem>

#include "host/project_file.h"
#include "hosting/file_bytes.h"

namespace hx::hosting {

OpenProject::OpenProject(std::string file, ProjectRegistry& registry)
    : file_(std::move(file)), name_(fileSystemPath(file_).stem().string()), registry_(registry) {
    reopen();
}

void OpenProject::reopen() { registry_.open(name_, fileSystemPath(file_).parent_path().string()); }

// By its name the add-in finds a project in the registry, always with a small extension; else by its file. A name that
// looks like a file would be taken for one.
void OpenProject::start(std::shared_ptr<host::CHX4Extensibility> addIn, host::ProjectExplorer& explorer) {
    addIn_ = std::move(addIn);
    const bool byName = file_.ends_with(host::projectExtension) && !host::isProjectFile(automation::trim(name_));
    addIn_->Initialize(byName ? name_ : file_, {}, &explorer, nullptr);
    addIn_->StartupComplete();
}

void OpenProject::end() {
    if (addIn_) addIn_->Terminate();
    addIn_.reset();
    registry_.close();
}

}  // namespace hx::hosting
