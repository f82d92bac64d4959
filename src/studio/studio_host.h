// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <string>

#include "adapters/qt/help/qt_help_viewer.h"
#include "adapters/qt/screen/qt_clipboard.h"
#include "adapters/qt/screen/qt_item_selection.h"
#include "adapters/qt/screen/qt_path_selection.h"
#include "adapters/qt/screen/qt_screen.h"
#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/wording.h"
#include "adapters/sqlite/provider.h"
#include "history/recording_provider.h"
#include "host/services.h"
#include "hosting/ini_text_file.h"
#include "hosting/project_registry.h"
#include "hosting/registry_file.h"
#include "macros/attended_screen.h"
#include "macros/attended_services.h"
#include "macros/macro_provider.h"
#include "studio/add_ins.h"
#include "studio/help_file.h"
#include "studio/project_variables.h"

namespace hx::studio {

/// The services of the desktop studio, each made once. Needs a QApplication and outlives all that it lends to.
class StudioHost {
  public:
    /// The registry and the user's macros lie in the configuration folder; add-in modules and sample macros in the
    /// first of `moduleFolders` that has them.
    StudioHost(const QString& configFolder, const QStringList& moduleFolders);

    /// What an add-in is lent.
    [[nodiscard]] const host::Services& services() const noexcept { return services_; }
    /// Who answers the add-ins while a macro runs, and the screen that asks.
    [[nodiscard]] macros::Attendance& attendance() noexcept { return attendance_; }
    [[nodiscard]] macros::AttendedScreen& attendedScreen() noexcept { return attendedScreen_; }
    [[nodiscard]] qt::QtScreen& screen() noexcept { return screen_; }
    [[nodiscard]] qt::QtWindows& windows() noexcept { return windows_; }
    [[nodiscard]] qt::Wording& wording() noexcept { return wording_; }
    [[nodiscard]] hosting::ProjectRegistry& registry() noexcept { return projectRegistry_; }
    [[nodiscard]] host::Clipboard& clipboard() noexcept { return clipboard_; }
    [[nodiscard]] AddIns& components() noexcept { return components_; }
    [[nodiscard]] qt::QtHelpViewer& help() noexcept { return help_; }
    [[nodiscard]] HelpFile& helpFile() noexcept { return helpFile_; }

    [[nodiscard]] const QString& configFolder() const noexcept { return configFolder_; }
    [[nodiscard]] const QStringList& moduleFolders() const noexcept { return moduleFolders_; }

    /// The store itself, of which nothing is recorded.
    [[nodiscard]] ado::Provider& store() noexcept { return provider_; }
    /// How projects are opened, with errors in the user's language.
    [[nodiscard]] sqlite::OpenOptions openOptions() const;
    /// The store that records what is changed.
    [[nodiscard]] ado::Provider& recordingStore() noexcept { return recordingProvider_; }
    /// Where the changes of the open project are recorded; null for nowhere.
    void setHistory(std::shared_ptr<history::History> history) noexcept { history_ = std::move(history); }

    /// The project whose variables and folder the choices offer; empty for none.
    void setProjectFile(const QString& path);

  private:
    [[nodiscard]] std::shared_ptr<history::History> historyOf(const std::string& path) const;

    QString configFolder_;
    QStringList moduleFolders_;
    qt::Wording wording_;
    qt::QtWindows windows_;
    qt::QtScreen screen_;
    sqlite::Provider provider_;
    std::shared_ptr<history::History> history_;
    history::RecordingProvider recordingProvider_;
    hosting::RegistryFile registry_;
    hosting::ProjectRegistry projectRegistry_;
    hosting::IniTextFile iniFile_;
    qt::QtClipboard clipboard_;
    qt::QtHelpViewer help_;
    HelpFile helpFile_;
    AddIns components_;
    ProjectVariables variables_;
    qt::QtItemSelection items_;
    qt::QtPathSelection folders_;
    macros::Attendance attendance_;
    std::string projectFile_;
    macros::MacroProvider attendedProvider_;
    macros::AttendedIniFile attendedIniFile_;
    macros::AttendedScreen attendedScreen_;
    macros::AttendedHelp attendedHelp_;
    macros::AttendedComponents attendedComponents_;
    macros::AttendedItems attendedItems_;
    macros::AttendedFolders attendedFolders_;
    host::Services services_;
};

}  // namespace hx::studio
