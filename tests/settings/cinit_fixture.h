// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "settings/cinit.h"
#include "settings_window.h"
#include "support/error_of.h"
#include "support/memory_provider.h"

namespace hx::settings {

inline constexpr const char* section = "frmtabGridRCP";
inline constexpr const char* path = "/plant/HXEditors.ini";

/// Default texts of the tests, by name.
inline std::string_view testText(std::string_view name) {
    if (name == "odd") return "a=1=2\r\n=x\r\nb=\r\n\r\nnothing\r\n key =  True\r\nc=x\n\nd\r\nee=L\xF6we";
    if (name == "merge") return "Me.Width=1\r\nnew.Entry=2\r\n";
    return defaultText(name);
}

/// The settings of a window, with the defaults of the editor or of the tests.
class CInitTest : public ::testing::Test {
  protected:
    void loadDefaults() { inits.LoadDefaultInit(section); }
    automation::Variant read(const std::string& entry) const {
        return inits.ReadAValueFromCInits(entry, automation::Variant("missing"));
    }
    std::string stored(const std::string& key) const { return host.iniFile.read(section, key, "none", path); }

    support::MemoryProvider database;
    headless::Host host{database};
    std::shared_ptr<SettingsWindow> window = std::make_shared<SettingsWindow>(host.screen);
    CInit inits{host.iniFile, {","}, &testText};
};

}  // namespace hx::settings
