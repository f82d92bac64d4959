#include "cli/run_macro_studio.h"

#include <algorithm>
#include <filesystem>
#include <limits>

#include "adapters/sqlite/project_file.h"
#include "automation/text.h"

namespace hx::cli {

namespace {

constexpr std::string_view extension = ".hxs";
constexpr std::int32_t allLevels = std::numeric_limits<std::int32_t>::max();
constexpr const char* languageValue = "LCID";
constexpr std::int32_t german = 1031;

using automation::Error;

bool isProjectFile(const std::string& path) {
    return automation::equalIgnoreCase(std::filesystem::path(path).extension().string(), extension);
}

// The connection string puts the path between other values, with nothing around it.
void requireNameable(const std::string& path) {
    if (path.find_first_of(";\"") == std::string::npos) return;
    throw Error(automation::errFail, "The path '" + path + "' holds a semicolon or a quotation mark");
}

std::unique_ptr<host::Registry> makeRegistry(const std::string& config) {
    if (config.empty()) return std::make_unique<headless::MemoryRegistry>();
    return std::make_unique<hosting::RegistryFile>((std::filesystem::path(config) / "registry.ini").string());
}

headless::HostOptions hostOptions(const MacroStudioOptions& options, host::Registry& registry, host::IniFile& ini) {
    headless::HostOptions made;
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
          provider_, [this] { return file_; }, [this] { return &files_; }),
      folderIniFile_(iniFile_, files_),
      registry_(makeRegistry(options.config)),
      projectRegistry_(*registry_) {
    host_ = std::make_unique<headless::Host>(macroProvider_, hostOptions(options, projectRegistry_, folderIniFile_));
    if (options.lcid) projectRegistry_.writeNumber(host::registry_keys::helvix, languageValue, *options.lcid);
}

automation::Language MacroStudio::language() const {
    return automation::languageOf(
        host_->services().registry.readNumber(host::registry_keys::helvix, languageValue, german));
}

MacroStudio::~MacroStudio() { closeProject(); }

std::string MacroStudio::pathOf(const std::string& path) const {
    return std::filesystem::absolute(path).lexically_normal().string();
}

void MacroStudio::newProject(const std::string& path) {
    const std::string file = isProjectFile(path) ? path : path + std::string(extension);
    requireNameable(file);
    sqlite::createProject(file);
    openProject(file);
}

void MacroStudio::openProject(const std::string& path) {
    if (!std::filesystem::is_regular_file(path)) {
        throw Error(automation::errFail, "There is no project file '" + path + "'");
    }
    requireNameable(path);
    closeProject();
    const std::filesystem::path file(path);
    const std::string name = file.stem().string();
    host_->screen.setLanguage(language());
    projectRegistry_.open(name, file.parent_path().string());
    file_ = path;
    host_->explorer.setProject(name);
    startAddIn(name);
}

std::string MacroStudio::fileOf(const std::string& name) const {
    if (isProjectFile(name)) return pathOf(name);
    const std::string folder = projectRegistry_.folderOf(name);
    if (folder.empty()) throw Error(automation::errFail, "No project '" + name + "' is known");
    return pathOf((std::filesystem::path(folder) / (name + std::string(extension))).string());
}

// By its name the add-in finds a project in the registry, always with a small extension; else by its file. A name that
// looks like a file would be taken for one.
void MacroStudio::startAddIn(const std::string& name) {
    addIn_ = std::make_shared<addin::Connect>(host_->services());
    const bool byName = file_.ends_with(extension) && !isProjectFile(std::string(automation::trim(name)));
    addIn_->Initialize(byName ? name : file_, {}, &host_->explorer, nullptr);
    addIn_->StartupComplete();
}

void MacroStudio::closeProject() {
    if (!addIn_) return;
    (void)editorWindow();
    addIn_->Terminate();
    formerAddIns_.push_back(std::move(addIn_));
    addIn_.reset();
    host_->explorer.setProject({});
    projectRegistry_.close();
    file_.clear();
}

std::vector<macros::Node> MacroStudio::nodes() {
    const hosting::NodeTree& tree = host_->explorer.tree();
    std::vector<macros::Node> list;
    for (const std::string& key : host_->explorer.childKeys("", allLevels)) list.push_back(macros::nodeOf(tree, key));
    return list;
}

automation::ObjectRef MacroStudio::editorWindow() {
    const auto window = addIn_ ? addIn_->editorWindow() : nullptr;
    if (window && std::ranges::find(windows_, window) == windows_.end()) windows_.push_back(window);
    return window;
}

}  // namespace hx::cli
