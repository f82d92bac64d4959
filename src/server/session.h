// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "adapters/com/explorer.h"
#include "adapters/sqlite/provider.h"
#include "adapters/windows/system_registry.h"
#include "host/services.h"
#include "hosting/ini_text_file.h"
#include "hosting/lent_services.h"
#include "server/lent_items_screen.h"
#include "server/view.h"

namespace hx::server {

/// What the file is called that the recipe editor is shipped as.
inline constexpr const char* builtLibrary = "HXRecipeEditor.dll";

/// All that one add-in is lent: what its host lends, and for the rest what Windows has. Outlives the add-in.
class Session {
  public:
    /// The components are lent; `libraryFile` is the file that the add-in was loaded from.
    Session(std::unique_ptr<View> view, host::Components& components, const std::string& libraryFile);

    [[nodiscard]] View& view() noexcept { return *view_; }
    [[nodiscard]] const host::Services& services() const noexcept { return services_; }
    /// From now on this host lends; null for none.
    void meet(com::Explorer* explorer);

  private:
    std::unique_ptr<View> view_;
    hosting::LentServices lent_;
    LentItemsScreen screen_;
    windows::SystemRegistry systemRegistry_;
    hosting::IniTextFile iniTextFile_;
    hosting::LentRegistry registry_;
    hosting::LentIniFile iniFile_;
    hosting::LentItemSelection items_;
    hosting::LentPathSelection folders_;
    sqlite::Provider provider_;
    host::Services services_;
};

}  // namespace hx::server
