// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "ado/provider.h"
#include "automation/convert.h"
#include "forms/screen.h"
#include "host/paths.h"
#include "host/system_services.h"

namespace hx::host {

/// Everything that a host lends to an add-in, for as long as the add-in lives.
struct Services {
    forms::Screen& screen;
    ado::Provider& database;
    Registry& registry;
    IniFile& iniFile;
    Clipboard& clipboard;
    HelpViewer& help;
    WindowOperations& windows;
    Components& components;
    ItemSelection& items;
    PathSelection& folders;
    PathStyle paths;
    automation::NumberFormat numberFormat;  ///< of the user's locale
    /// File name of the module that the add-in was loaded from, and the platform's name of the built library.
    std::string moduleFile;
    std::string libraryName = "HXRecipeEditor.so";

    /// Whether the add-in runs as its built library. Ignores case and folders.
    [[nodiscard]] bool runsAsLibrary() const;
};

}  // namespace hx::host
