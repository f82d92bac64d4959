#include "adapters/lua/macro_folder.h"

#include "automation/error.h"
#include "automation/text.h"

namespace hx::lua {

namespace {

constexpr std::string_view projectExtension = ".hxs";

bool isBelow(const std::filesystem::path& file, const std::filesystem::path& folder) {
    const std::filesystem::path relative = file.lexically_relative(folder);
    return !relative.empty() && *relative.begin() != ".." && *relative.begin() != ".";
}

}  // namespace

std::string fileBelow(const std::filesystem::path& folder, const std::string& name) {
    const std::filesystem::path root = std::filesystem::weakly_canonical(folder);
    const std::filesystem::path file = std::filesystem::weakly_canonical(root / name);
    if (isBelow(file, root)) return file.string();
    throw automation::Error(automation::errFail, "The file '" + name + "' is not in the project's folder");
}

bool isProject(const std::string& file) {
    const std::string extension = std::filesystem::path(file).extension().string();
    return automation::equalIgnoreCase(extension.substr(0, extension.find('-')), projectExtension);
}

}  // namespace hx::lua
