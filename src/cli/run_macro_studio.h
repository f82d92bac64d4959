// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "adapters/sqlite/provider.h"
#include "addin/connect.h"
#include "hosting/ini_text_file.h"
#include "hosting/open_project.h"
#include "hosting/registry_file.h"
#include "macros/folder_ini_file.h"
#include "macros/macro_provider.h"
#include "macros/studio.h"

namespace hx::cli {

struct MacroStudioOptions {
    std::string config;                ///< folder of the registry; empty: one in memory
    std::optional<std::int32_t> lcid;  ///< goes into the registry
    std::string decimalPoint = ".";
    lua::MacroFiles files;  ///< that the macro may have opened and the editor's settings written to
    bool trusted = false;   ///< lets the macro set what stays in the registry
};

/// A studio without a screen that opens projects as the desktop does. What a macro still holds of a project that is
/// closed stays safe to use: add-ins and windows live as long as the studio.
class MacroStudio : public macros::Studio {
  public:
    explicit MacroStudio(const MacroStudioOptions& options);
    ~MacroStudio() override;
    MacroStudio(const MacroStudio&) = delete;
    MacroStudio& operator=(const MacroStudio&) = delete;

    [[nodiscard]] std::string pathOf(const std::string& path) const override;
    void newProject(const std::string& path) override;
    void openProject(const std::string& file) override;
    void closeProject() override;
    [[nodiscard]] std::string file() const override { return project_ ? project_->file() : std::string(); }
    [[nodiscard]] std::shared_ptr<host::CHX4Extensibility> addIn() const override { return addIn_; }
    [[nodiscard]] automation::ObjectRef editorWindow() override;

    [[nodiscard]] std::vector<macros::Node> nodes() override;
    [[nodiscard]] host::NodeEvent eventOf(const std::string& key) override { return host_->explorer.eventOf(key); }
    [[nodiscard]] std::string selected() const override { return host_->explorer.selectedNode().key; }
    void select(const std::string& key) override { host_->explorer.select(key); }
    void showExpanded(const std::string&) override {}

    [[nodiscard]] hosting::ProjectRegistry& registry() override { return projectRegistry_; }
    [[nodiscard]] bool keepsRegistry() const override { return keepsRegistry_; }
    [[nodiscard]] forms::Script& script() override { return host_->script; }
    [[nodiscard]] forms::Record& record() override { return host_->record; }
    [[nodiscard]] hosting::Components& components() override { return host_->components; }

  private:
    [[nodiscard]] automation::Language language() const;

    lua::MacroFiles files_;
    bool keepsRegistry_;
    sqlite::Provider provider_;
    macros::MacroProvider macroProvider_;
    hosting::IniTextFile iniFile_;
    macros::FolderIniFile folderIniFile_;
    std::unique_ptr<host::Registry> registry_;
    hosting::ProjectRegistry projectRegistry_;
    std::unique_ptr<headless::Host> host_;
    std::optional<hosting::OpenProject> project_;
    std::shared_ptr<addin::Connect> addIn_;  ///< the project's
    std::vector<std::shared_ptr<addin::Connect>> formerAddIns_;
    std::vector<std::shared_ptr<editor::frmtabgrid>> windows_;
};

}  // namespace hx::cli
