#include "macros/folder_ini_file.h"

#include "automation/error.h"
#include "automation/text.h"
#include "host/file_bytes.h"

namespace hx::macros {

using automation::Error;

namespace {

constexpr std::string_view projectExtension = ".hxs";

bool isBelow(const std::filesystem::path& file, const std::filesystem::path& folder) {
    const auto relative = file.lexically_relative(folder);
    return !relative.empty() && *relative.begin() != ".." && *relative.begin() != ".";
}

bool isProject(const std::filesystem::path& file) {
    return automation::equalIgnoreCase(file.extension().string(), projectExtension);
}

}  // namespace

std::string FolderIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                const std::string& path) const {
    return files_.read(section, key, fallback, allowed(path));
}

void FolderIniFile::write(std::string_view section, std::string_view key, std::string_view text,
                          const std::string& path) {
    files_.write(section, key, text, allowed(path));
}

// What links lead to counts.
std::string FolderIniFile::allowed(const std::string& path) const {
    const std::filesystem::path folder = folder_();
    if (folder.empty()) throw Error(automation::errFail, "No project is open whose folder could hold settings");
    const auto root = std::filesystem::weakly_canonical(folder);
    const auto file = std::filesystem::weakly_canonical(root / host::fileSystemPath(path));
    if (!isBelow(file, root)) {
        throw Error(automation::errFail, "The file '" + path + "' is not in the project's folder");
    }
    if (isProject(file)) {
        throw Error(automation::errFail, "The file '" + path + "' is a project and holds no settings");
    }
    return file.string();
}

}  // namespace hx::macros
