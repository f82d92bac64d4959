// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "studio/project.h"

namespace hx::studio {

/// The open project of the studio's window. Failures are automation::Error in the studio's language.
class ProjectWindow {
  public:
    virtual ~ProjectWindow() = default;
    /// Null while none is open.
    [[nodiscard]] virtual const Project* project() const noexcept = 0;
    /// Closes the open project and opens this one. When its add-in does not start, the project is open nevertheless.
    virtual void open(const QString& path) = 0;
    /// Makes an empty project, which must not exist yet, and opens it; ".hxs" is added when it is missing.
    virtual void create(const QString& path) = 0;
    virtual void closeProject() = 0;
    /// Where a choice of a project begins.
    [[nodiscard]] virtual QString projectFolder() const = 0;
};

}  // namespace hx::studio
