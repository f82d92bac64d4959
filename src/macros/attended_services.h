// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>

#include "host/system_services.h"
#include "macros/attendance.h"
#include "macros/folder_ini_file.h"

/// The user's services, where a macro that runs may answer instead of him. All that they are made from is lent.
namespace hx::macros {

class AttendedItems : public host::ItemSelection {
  public:
    AttendedItems(host::ItemSelection& user, Attendance& attendance) : user_(user), attendance_(attendance) {}
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override;

  private:
    host::ItemSelection& user_;
    Attendance& attendance_;
};

class AttendedFolders : public host::PathSelection {
  public:
    AttendedFolders(host::PathSelection& user, Attendance& attendance) : user_(user), attendance_(attendance) {}
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override;

  private:
    host::PathSelection& user_;
    Attendance& attendance_;
};

/// While a macro runs, the files that it may use, as FolderIniFile has them; else those beside the user's project. What
/// a macro has named to the editor's settings stays with them when it has ended.
class AttendedIniFile : public host::IniFile {
  public:
    AttendedIniFile(host::IniFile& user, Attendance& attendance, std::function<std::filesystem::path()> folder)
        : user_(user), folder_(std::move(folder)), attendance_(attendance) {}
    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

  private:
    void requireUsers(const std::string& path) const;

    host::IniFile& user_;
    std::function<std::filesystem::path()> folder_;
    Attendance& attendance_;
};

/// The help is shown, and recorded.
class AttendedHelp : public host::HelpViewer {
  public:
    AttendedHelp(host::HelpViewer& user, Attendance& attendance) : user_(user), attendance_(attendance) {}
    void showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) override;
    void closeAll() override { user_.closeAll(); }

  private:
    host::HelpViewer& user_;
    Attendance& attendance_;
};

/// Those that the macro puts in come first; the calls of the others are recorded.
class AttendedComponents : public host::Components {
  public:
    AttendedComponents(host::Components& user, Attendance& attendance) : user_(user), attendance_(attendance) {}
    [[nodiscard]] automation::ObjectRef create(std::string_view programId) override;

  private:
    host::Components& user_;
    Attendance& attendance_;
};

}  // namespace hx::macros
