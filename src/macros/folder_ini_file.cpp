#include "macros/folder_ini_file.h"

#include "adapters/lua/macro_folder.h"
#include "automation/error.h"
#include "host/file_bytes.h"

namespace hx::macros {

using automation::Error;

std::string FolderIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                const std::string& path) const {
    return files_.read(section, key, fallback, allowed(path));
}

void FolderIniFile::writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) {
    files_.writeAll(section, texts, allowed(path));
}

std::string FolderIniFile::allowed(const std::string& path) const {
    const std::filesystem::path folder = folder_();
    if (folder.empty()) throw Error(automation::errFail, "No project is open whose folder could hold settings");
    std::string file = lua::fileBelow(folder, host::fileSystemPath(path));
    if (lua::isProject(file)) {
        throw Error(automation::errFail, "The file '" + path + "' is a project and holds no settings");
    }
    return file;
}

}  // namespace hx::macros
