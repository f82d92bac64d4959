// SPDX-License-Identifier: MIT
#include "adapters/lua/macro_files.h"

#include <algorithm>

#include "automation/error.h"
#include "automation/text.h"
#include "host/project_file.h"
#include "hosting/file_bytes.h"
#include "hosting/links.h"

namespace hx::lua {

namespace fs = std::filesystem;

namespace {

// What the files of the database begin with: a project, and the journal of one.
constexpr std::string_view databaseMark = "SQLite format 3", journalMark = "\xD9\xD5\x05\xF9\x20\xA1\x63\xD7";

[[noreturn]] void refuse(const std::string& name, const std::string& problem) {
    throw automation::Error(automation::errFail, "The file '" + name + "' " + problem);
}

bool isBelow(const fs::path& file, const fs::path& folder) {
    const fs::path relative = file.lexically_relative(folder);
    return !relative.empty() && *relative.begin() != ".." && *relative.begin() != ".";
}

bool isNamedAsProject(const fs::path& file) {
    const std::string extension = file.extension().string();
    return automation::equalIgnoreCase(extension.substr(0, extension.find('-')), host::projectExtension);
}

// A hard link gives a project another name.
bool beginsAsProject(const std::string& file) {
    const std::string start = hosting::startOf(hosting::fileSystemPath(file), databaseMark.size());
    return start == databaseMark || start.starts_with(journalMark);
}

}  // namespace

bool isProject(const std::string& file) {
    return isNamedAsProject(hosting::fileSystemPath(file)) || beginsAsProject(file);
}

void MacroFiles::allow(const fs::path& folder) {
    if (!folder.empty()) folders_.push_back(hosting::placeOf(folder));
}

MacroFiles MacroFiles::all() {
    MacroFiles files;
    files.all_ = true;
    return files;
}

std::string MacroFiles::toRead(const std::string& name) const {
    std::string file = within(name);
    const fs::file_type type = fs::symlink_status(hosting::fileSystemPath(file)).type();
    if (!all_ && type != fs::file_type::not_found && type != fs::file_type::regular) refuse(name, "is no file");
    return file;
}

std::string MacroFiles::within(const std::string& name) const {
    if (all_) return name;
    if (folders_.empty()) {
        throw automation::Error(automation::errFail,
                                "The macro has no files: it was started without a project or a folder of its own");
    }
    // The system takes a name up to the first of these.
    if (name.find('\0') != std::string::npos)
        refuse(name.substr(0, name.find('\0')), "cannot be named with a zero byte");
    const fs::path file = hosting::placeOf(folders_.front() / hosting::fileSystemPath(name));
    if (std::ranges::none_of(folders_, [&](const fs::path& folder) { return isBelow(file, folder); })) {
        refuse(name, "is not in the folder " + folders() + ", whose files the macro may use");
    }
    return file.string();
}

std::string MacroFiles::toWrite(const std::string& name) const {
    (void)toRead(name);
    return toReplace(name);
}

std::string MacroFiles::toReplace(const std::string& name) const {
    std::string file = within(name);
    if (!all_ && isProject(file)) refuse(name, "is a project and cannot be written by a macro");
    return file;
}

std::string MacroFiles::folders() const {
    std::string names;
    for (const fs::path& folder : folders_) names += (names.empty() ? "'" : " or '") + folder.string() + "'";
    return names;
}

}  // namespace hx::lua
