#pragma once

#include <QString>
#include <QStringList>

#include "adapters/qt/module_components.h"
#include "adapters/qt/qt_clipboard.h"
#include "adapters/qt/qt_help_viewer.h"
#include "adapters/qt/qt_item_selection.h"
#include "adapters/qt/qt_path_selection.h"
#include "adapters/qt/qt_screen.h"
#include "adapters/qt/qt_windows.h"
#include "adapters/qt/wording.h"
#include "adapters/sqlite/provider.h"
#include "host/ini_text_file.h"
#include "host/registry_file.h"
#include "host/services.h"
#include "studio/help_file.h"
#include "studio/project_variables.h"

namespace hx::studio {

/// The services of the desktop studio, each made once. Needs a QApplication and outlives all that it lends to.
class StudioHost {
  public:
    /// The registry lies in the configuration folder; add-in modules in the first of `moduleFolders` that has them.
    StudioHost(const QString& configFolder, const QStringList& moduleFolders);

    [[nodiscard]] const host::Services& services() const noexcept { return services_; }
    [[nodiscard]] qt::QtScreen& screen() noexcept { return screen_; }
    [[nodiscard]] qt::QtWindows& windows() noexcept { return windows_; }
    [[nodiscard]] qt::Wording& wording() noexcept { return wording_; }
    [[nodiscard]] host::Registry& registry() noexcept { return registry_; }
    [[nodiscard]] host::Clipboard& clipboard() noexcept { return clipboard_; }
    [[nodiscard]] qt::ModuleComponents& components() noexcept { return components_; }
    [[nodiscard]] qt::QtHelpViewer& help() noexcept { return help_; }
    [[nodiscard]] HelpFile& helpFile() noexcept { return helpFile_; }

    /// The project whose variables and folder the choices offer; empty for none.
    void setProjectFile(const QString& path);

  private:
    qt::Wording wording_;
    qt::QtWindows windows_;
    qt::QtScreen screen_;
    sqlite::Provider provider_;
    host::RegistryFile registry_;
    host::IniTextFile iniFile_;
    qt::QtClipboard clipboard_;
    qt::QtHelpViewer help_;
    HelpFile helpFile_;
    qt::ModuleComponents components_;
    ProjectVariables variables_;
    qt::QtItemSelection items_;
    qt::QtPathSelection folders_;
    host::Services services_;
};

}  // namespace hx::studio
