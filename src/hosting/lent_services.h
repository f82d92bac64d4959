// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "automation/dispatch.h"
#include "host/system_services.h"

namespace hx::hosting {

/// What a studio in another language lends beside its explorer: objects whose members are called by name. Each may be
/// empty; the add-in's own service then serves.
struct LentServices {
    automation::ObjectRef registry;       ///< ReadString, ReadNumber, WriteString, WriteNumber
    automation::ObjectRef iniFile;        ///< Read, Write
    automation::ObjectRef itemSelection;  ///< Choose
    automation::ObjectRef pathSelection;  ///< Choose
    automation::ObjectRef multiItems;     ///< ItemFilter, SelectedItems, Choose
    /// The window that the studio knows for a handle of the add-in's; without it, the handle is that window's.
    std::function<host::WindowHandle(host::WindowHandle)> windowOf;

    /// Those that the object has under the names Registry, IniFile, ItemSelection, PathSelection and HXMultiItems.
    [[nodiscard]] static LentServices of(const automation::ObjectRef& services);
    /// What the studio knows a window of the add-in's by.
    [[nodiscard]] host::WindowHandle known(host::WindowHandle window) const {
        return windowOf ? windowOf(window) : window;
    }
};

/// What a member gives that an object may have; empty when it has none, or none that is an object.
[[nodiscard]] automation::Variant readIfThere(automation::Dispatch& object, std::string_view name);
[[nodiscard]] automation::ObjectRef objectIfThere(automation::Dispatch& object, std::string_view name);

// The services as an add-in is lent them: the studio's, else the own one. Both are lent.

class LentRegistry : public host::Registry {
  public:
    LentRegistry(const LentServices& lent, host::Registry& own) : lent_(lent), own_(own) {}
    [[nodiscard]] std::string readString(std::string_view key, std::string_view value,
                                         std::string_view fallback = {}) const override;
    [[nodiscard]] std::int32_t readNumber(std::string_view key, std::string_view value,
                                          std::int32_t fallback) const override;
    void writeString(std::string_view key, std::string_view value, std::string_view data) override;
    void writeNumber(std::string_view key, std::string_view value, std::int32_t data) override;

  private:
    const LentServices& lent_;
    host::Registry& own_;
};

class LentIniFile : public host::IniFile {
  public:
    LentIniFile(const LentServices& lent, host::IniFile& own) : lent_(lent), own_(own) {}
    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    /// The studio's service writes key by key.
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

  private:
    const LentServices& lent_;
    host::IniFile& own_;
};

class LentItemSelection : public host::ItemSelection {
  public:
    LentItemSelection(const LentServices& lent, host::ItemSelection& own) : lent_(lent), own_(own) {}
    [[nodiscard]] std::string choose(host::WindowHandle owner, const std::string& current) override;

  private:
    const LentServices& lent_;
    host::ItemSelection& own_;
};

class LentPathSelection : public host::PathSelection {
  public:
    LentPathSelection(const LentServices& lent, host::PathSelection& own) : lent_(lent), own_(own) {}
    [[nodiscard]] std::string choose(host::WindowHandle owner, const std::string& current) override;

  private:
    const LentServices& lent_;
    host::PathSelection& own_;
};

}  // namespace hx::hosting
