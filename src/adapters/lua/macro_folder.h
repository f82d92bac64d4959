#pragma once

#include <filesystem>
#include <string>

/// Which files a macro may use: those below one folder, and projects only to read.
namespace hx::lua {

/// The file that is named, where relative names lie in the folder; what links lead to counts. Throws errFail when it
/// does not lie below the folder.
[[nodiscard]] std::string fileBelow(const std::filesystem::path& folder, const std::string& name);

/// Whether a file is a project or what the database keeps beside one (.hxs-journal), from which it takes changes back:
/// an open project is changed by the editor alone, and a file written over it would be its end.
[[nodiscard]] bool isProject(const std::string& file);

}  // namespace hx::lua
