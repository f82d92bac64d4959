// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "exchange/content_file.h"
#include "exchange/differences.h"

namespace hx::exchange {

enum class ImportMode {
    add,     ///< recipes whose name the project lacks; the others stay as they are
    update,  ///< these, and the project's recipes become what the file says of them
    replace  ///< the same, and what is not in the file is deleted
};

struct ImportCounts {
    std::size_t added = 0, changed = 0, removed = 0;  ///< recipes
};

// Both throw automation::Error, with line and field when something in the file is wrong; the project is then as before.

/// Brings the recipes of an export into the project at a path, which `session` has open, all or nothing. A recipe that
/// the project has keeps its ID; another one gets the ID of the file when it is free, else a new one. When a member
/// changes, all of its recipe are written anew; what the file does not say of those that stay is kept.
ImportCounts importContent(const std::shared_ptr<ado::Session>& session, const std::string& project,
                           const std::string& file, ImportMode mode, const Progress& progress);
/// Carries the import out, takes it back again and says what it changed. The session should keep it out of the file.
[[nodiscard]] std::vector<Difference> previewImport(const std::shared_ptr<ado::Session>& session,
                                                    const std::string& project, const std::string& file,
                                                    ImportMode mode, const Progress& progress);

}  // namespace hx::exchange
