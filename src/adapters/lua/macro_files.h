// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hx::lua {

/// Whether a file is a project, by its name or by what it holds, or what the database keeps beside one (.hxs-journal),
/// from which it takes changes back.
[[nodiscard]] bool isProject(const std::string& file);

/// Which files a macro may use: those below some folders, and of those no project to write. Where links lead counts.
class MacroFiles {
  public:
    /// None at all.
    MacroFiles() = default;
    explicit MacroFiles(const std::filesystem::path& folder) { allow(folder); }
    /// Those below this folder too; none with an empty one.
    void allow(const std::filesystem::path& folder);
    /// Every file, for a macro that is trusted.
    [[nodiscard]] static MacroFiles all();

    /// The file that is named; relative names lie in the first folder. It need not be there. Throws errFail when it
    /// does not lie below one of them, or is a folder or anything else but a file.
    [[nodiscard]] std::string toRead(const std::string& name) const;
    /// Throws errFail for a project too: an open one is changed by the editor alone, and a file written over it would
    /// be its end.
    [[nodiscard]] std::string toWrite(const std::string& name) const;
    /// The same for what reads and replaces whole files and says itself when there is something else than a file.
    [[nodiscard]] std::string toReplace(const std::string& name) const;

  private:
    [[nodiscard]] std::string within(const std::string& name) const;
    [[nodiscard]] std::string folders() const;

    std::vector<std::filesystem::path> folders_;
    bool all_ = false;
};

}  // namespace hx::lua
