// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "adapters/qt/explorer/qt_explorer.h"
#include "macros/studio.h"
#include "studio/project_window.h"
#include "studio/studio_host.h"

namespace hx::studio {

/// The studio's window as a macro's studio. It keeps the add-ins and editor windows that a macro may still hold for as
/// long as it lives.
class WindowStudio : public macros::Studio {
  public:
    /// All are lent.
    WindowStudio(ProjectWindow& window, StudioHost& host, qt::QtExplorer& explorer)
        : window_(window), host_(host), explorer_(explorer) {}

    [[nodiscard]] std::string pathOf(const std::string& path) const override;
    void newProject(const std::string& path) override;
    void openProject(const std::string& file) override;
    void closeProject() override;
    [[nodiscard]] std::string file() const override;
    [[nodiscard]] std::shared_ptr<host::CHX4Extensibility> addIn() const override;
    [[nodiscard]] automation::ObjectRef editorWindow() override;

    [[nodiscard]] std::vector<macros::Node> nodes() override;
    [[nodiscard]] host::NodeEvent eventOf(const std::string& key) override { return explorer_.eventOf(key); }
    [[nodiscard]] std::string selected() const override { return explorer_.selectedNode().key; }
    void select(const std::string& key) override { explorer_.select(key); }
    void showExpanded(const std::string& key) override { explorer_.showExpanded(key); }

    [[nodiscard]] hosting::ProjectRegistry& registry() override { return host_.registry(); }
    [[nodiscard]] bool keepsRegistry() const override { return true; }
    [[nodiscard]] forms::Script& script() override { return host_.attendance().script; }
    [[nodiscard]] forms::Record& record() override { return host_.attendance().record; }
    [[nodiscard]] hosting::Components& components() override { return host_.attendance().components; }

  private:
    void keepOpened();

    ProjectWindow& window_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    std::vector<std::shared_ptr<host::CHX4Extensibility>> addIns_;
    std::vector<automation::ObjectRef> windows_;  ///< these end before the add-ins
};

}  // namespace hx::studio
