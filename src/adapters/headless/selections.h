// SPDX-License-Identifier: MIT
#pragma once

#include "forms/record.h"
#include "forms/script.h"
#include "host/system_services.h"

namespace hx::headless {

/// Variables that the script chooses.
class ItemSelection : public host::ItemSelection {
  public:
    ItemSelection(const forms::Script& script, forms::Record& record) : script_(script), record_(record) {}
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override {
        const auto ask = script_.onItem;
        std::string chosen = ask ? ask(current) : std::string();
        record_.items.push_back({owner, current, chosen});
        return chosen;
    }

  private:
    const forms::Script& script_;
    forms::Record& record_;
};

/// Folders that the script chooses.
class PathSelection : public host::PathSelection {
  public:
    PathSelection(const forms::Script& script, forms::Record& record) : script_(script), record_(record) {}
    [[nodiscard]] std::string choose(forms::WindowHandle owner, const std::string& current) override {
        const auto ask = script_.onFolder;
        std::string chosen = ask ? ask(current) : current;
        record_.folders.push_back({owner, current, chosen});
        return chosen;
    }

  private:
    const forms::Script& script_;
    forms::Record& record_;
};

}  // namespace hx::headless
