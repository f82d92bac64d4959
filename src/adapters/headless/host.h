// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "adapters/headless/clipboard.h"
#include "adapters/headless/help_viewer.h"
#include "adapters/headless/memory_ini_file.h"
#include "adapters/headless/memory_registry.h"
#include "adapters/headless/project_explorer.h"
#include "adapters/headless/screen.h"
#include "adapters/headless/selections.h"
#include "adapters/headless/window_operations.h"
#include "forms/record.h"
#include "forms/script.h"
#include "host/services.h"
#include "hosting/components.h"

namespace hx::headless {

/// What a headless host can be made with.
struct HostOptions {
    std::string project{};  ///< owner of the explorer's nodes
    char separator = '/';
    std::string decimalPoint = ".";
    std::string moduleFile = "HXRecipeEditor.so";  ///< the file that the add-in says it was loaded from
    host::Registry* registry = nullptr;            ///< lent; without one, one in memory
    host::IniFile* iniFile = nullptr;              ///< lent; without one, one in memory
};

/// A studio without a screen: answers from `script`, keeps what happened in `record`.
class Host {
  public:
    /// The database is lent.
    explicit Host(ado::Provider& database, HostOptions options = {});
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Lends the host's parts for as long as the host lives.
    [[nodiscard]] const host::Services& services() const noexcept { return services_; }

    forms::Script script;
    forms::Record record;
    WindowOperations windows;
    Screen screen;
    Clipboard clipboard;
    HelpViewer help;
    hosting::Components components;
    ItemSelection items;
    PathSelection folders;
    MemoryRegistry registry;  ///< unused when another one is lent; the same for the INI files
    MemoryIniFile iniFile;
    ProjectExplorer explorer;

  private:
    host::Services services_;
};

}  // namespace hx::headless
