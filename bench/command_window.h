// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "adapters/headless/host.h"
#include "adapters/sqlite/provider.h"
#include "bench/projects.h"
#include "editor/add_in.h"
#include "editor/frmtabgrid.h"
#include "recipe/data_environment.h"
#include "resources/help.h"
#include "resources/resource_table.h"

namespace hx::bench {

/// Stands for the add-in that owns the editor's window.
class WindowOwner : public editor::AddIn {
  public:
    explicit WindowOwner(headless::Host& host) : host_(host), help_(host.services()) {
        texts_.InitResources(host.registry);
    }
    /// Throws: the commands that are measured leave the window as it is.
    void RefreshView() override;
    [[nodiscard]] host::ProjectExplorer* explorer() const override { return &host_.explorer; }
    [[nodiscard]] const host::Services& services() const override { return host_.services(); }
    [[nodiscard]] const resources::ResourceTable& texts() const override { return texts_; }
    [[nodiscard]] resources::Help& help() override { return help_; }
    [[nodiscard]] recipe::StatusCounters& counters() override { return counters_; }
    [[nodiscard]] bool& busy() override { return busy_; }

  private:
    headless::Host& host_;
    resources::ResourceTable texts_;
    resources::Help help_;
    recipe::StatusCounters counters_;
    bool busy_ = false;
};

/// An editor's window on a project without a screen: the big recipe is shown, and its commands run as by a click. It
/// deletes without asking.
class CommandWindow {
  public:
    explicit CommandWindow(const Project& project);

    /// Throws when the tool cannot be clicked or the user would be told of an error.
    void click(const std::string& tool);
    /// What the user does in dialogs.
    [[nodiscard]] forms::Script& script() noexcept { return host_.script; }
    [[nodiscard]] editor::frmtabgrid& window() noexcept { return *window_; }

  private:
    void addNodes(const std::string& key);

    sqlite::Provider provider_;
    headless::Host host_{provider_};
    WindowOwner owner_{host_};
    std::shared_ptr<recipe::DataEnvironment> data_ = std::make_shared<recipe::DataEnvironment>(provider_);
    std::shared_ptr<editor::frmtabgrid> window_ = std::make_shared<editor::frmtabgrid>(owner_);
};

}  // namespace hx::bench
