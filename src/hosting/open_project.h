// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/extensibility.h"
#include "host/project_explorer.h"
#include "hosting/project_registry.h"

namespace hx::hosting {

/// A project that a host has open: its record in the registry, and its add-in from Initialize to Terminate.
class OpenProject {
  public:
    /// Records the folder of the file, an absolute path. The registry is lent. Throws automation::Error when it cannot
    /// be written.
    OpenProject(std::string file, ProjectRegistry& registry);
    ~OpenProject() { end(); }
    OpenProject(const OpenProject&) = delete;
    OpenProject& operator=(const OpenProject&) = delete;

    /// Starts the add-in on the nodes of an explorer, which is lent until end().
    void start(std::shared_ptr<host::CHX4Extensibility> addIn, host::ProjectExplorer& explorer);
    /// After end(): the project is recorded again, for another start(). Throws as the constructor does.
    void reopen();
    /// Ends the add-in; somebody may still hold it afterwards.
    void end();

    [[nodiscard]] const std::string& file() const noexcept { return file_; }
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    /// Null before start() and after end().
    [[nodiscard]] const std::shared_ptr<host::CHX4Extensibility>& addIn() const noexcept { return addIn_; }

  private:
    std::string file_, name_;
    ProjectRegistry& registry_;
    std::shared_ptr<host::CHX4Extensibility> addIn_;
};

}  // namespace hx::hosting
