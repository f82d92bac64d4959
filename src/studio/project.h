// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>

#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/text.h"
#include "hosting/open_project.h"
#include "studio/studio_host.h"

namespace hx::studio {

/// An open project: its node in the explorer and its add-in, from Initialize to Terminate.
class Project {
  public:
    /// The key of the studio's own node in the explorer, the variable list.
    static constexpr const char* variablesKey = "HXVARIABLES";

    /// Records the project's folder in the registry and shows its node. Both are lent. Throws automation::Error when
    /// the registry cannot be written.
    Project(const QString& file, StudioHost& host, qt::QtExplorer& explorer);
    /// Ends the add-in: what is being typed is kept.
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    /// Creates the add-in and starts it. Throws automation::Error when it cannot be loaded; the project stays open.
    void startAddIn();
    /// Ends the add-in and starts another, which speaks the language of now. What startAddIn() throws is passed on.
    void restartAddIn();
    [[nodiscard]] const QString& file() const noexcept { return file_; }
    [[nodiscard]] QString name() const { return qt::toQt(open_.name()); }
    [[nodiscard]] const std::shared_ptr<host::CHX4Extensibility>& addIn() const noexcept { return open_.addIn(); }

  private:
    void showNode();
    void endAddIn();

    QString file_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    hosting::OpenProject open_;
};

}  // namespace hx::studio
