// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>

namespace hx::torture {

/// Changes a project from outside.
void change(const std::string& project, const std::string& sql);

/// Whether a file of the folder is the toolkit's own.
[[nodiscard]] bool isToolkits(const std::string& file);

/// Whether the store itself finds no damage in a project.
[[nodiscard]] bool isSound(const std::string& project);

/// What a folder holds for its user.
struct State {
    std::string project;                        ///< all rows of its projects; "none" without one, "damaged: ..." else
    std::map<std::string, std::string> texts;   ///< other files, by name; not the toolkit's
    std::map<std::string, std::string> values;  ///< settings and registry, by file, section and key
    std::set<std::string> files;

    /// Reads a folder; whatever a project has left to take back is taken back first. What stands in the texts for the
    /// folder itself becomes "~".
    [[nodiscard]] static State of(const std::string& folder);
};

}  // namespace hx::torture
