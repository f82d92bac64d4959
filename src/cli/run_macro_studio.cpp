// SPDX-License-Identifier: MIT
#include "cli/run_macro_studio.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "adapters/sqlite/project_file.h"
#include "automation/sentence.h"
#include "host/project_file.h"
#include "hosting/file_bytes.h"

namespace hx::cli {

namespace {

constexpr const char* languageValue = "LCID";

using automation::Error;

void requireNameable(const std::string& path) {
    if (host::isNameable(path)) return;
    throw Error(automation::errFail, "The path '" + path + "' holds a semicolon or a quotation mark");
}

std::unique_ptr<host::Registry> makeRegistry(const std::string& config) {
    if (config.empty()) return std::make_unique<headless::MemoryRegistry>();
    return std::make_unique<hosting::RegistryFile>((hosting::fileSystemPath(config) / "registry.ini").string());
}

headless::HostOptions hostOptions(const MacroStudioOptions& options, host::Registry& registry, host::IniFile& ini) {
    headless::HostOptions made;
    made.separator = static_cast<char>(std::filesystem::path::preferred_separator);
    made.decimalPoint = options.decimalPoint;
    made.registry = &registry;
    made.iniFile = &ini;
    return made;
}

}  // namespace

MacroStudio::MacroStudio(const MacroStudioOptions& options)
    : files_(options.files),
      keepsRegistry_(!options.config.empty() && !options.trusted),
      provider_([this] { return sqlite::OpenOptions{.language = language()}; }),
      macroProvider_(
          provider_, [this] { return file(); }, [this] { return &files_; }),
      folderIniFile_(iniFile_, files_),
      registry_(makeRegistry(options.config)),
      projectRegistry_(*registry_) {
    host_ = std::make_unique<headless::Host>(macroProvider_, hostOptions(options, projectRegistry_, folderIniFile_));
    if (options.lcid) projectRegistry_.writeNumber(host::registry_keys::helvix, languageValue, *options.lcid);
}

automation::Language MacroStudio::language() const {
    return automation::languageOf(
        host_->services().registry.readNumber(host::registry_keys::helvix, languageValue, automation::germanLcid));
}

MacroStudio::~MacroStudio() { closeProject(); }

std::string MacroStudio::pathOf(const std::string& path) const {
    return std::filesystem::absolute(hosting::fileSystemPath(path)).lexically_normal().string();
}

void MacroStudio::newProject(const std::string& path) {
    const std::string file = host::isProjectFile(path) ? path : path + std::string(host::projectExtension);
    requireNameable(file);
    sqlite::createProject(file);
    openProject(file);
}

void MacroStudio::openProject(const std::string& path) {
    if (!std::filesystem::is_regular_file(hosting::fileSystemPath(path))) {
        throw Error(automation::errFail, "There is no project file '" + path + "'");
    }
    requireNameable(path);
    closeProject();
    host_->screen.setLanguage(language());
    project_.emplace(path, projectRegistry_);
    host_->explorer.setProject(project_->name());
    addIn_ = std::make_shared<addin::Connect>(host_->services());
    project_->start(addIn_, host_->explorer);
}

void MacroStudio::closeProject() {
    if (!project_) return;
    (void)editorWindow();
    project_->end();
    formerAddIns_.push_back(std::exchange(addIn_, nullptr));
    host_->explorer.setProject({});
    project_.reset();
}

std::vector<macros::Node> MacroStudio::nodes() { return macros::nodesBelow(host_->explorer.tree(), {}); }

automation::ObjectRef MacroStudio::editorWindow() {
    const auto window = addIn_ ? addIn_->editorWindow() : nullptr;
    if (window && std::ranges::find(windows_, window) == windows_.end()) windows_.push_back(window);
    return window;
}

}  // namespace hx::cli
