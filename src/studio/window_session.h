// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

#include "studio/editor_refresh.h"
#include "studio/preferences.h"

namespace hx::studio {

/// The columns of the lists beside the documents, those that the user sees.
[[nodiscard]] Preferences::Columns columnsOf(const QMainWindow& window);
void restoreColumns(const QMainWindow& window, const Preferences::Columns& columns);

/// What the user sees of a project, as it is remembered and back.
[[nodiscard]] Preferences::Session sessionOf(const QString& file, const ExplorerState& place);
[[nodiscard]] ExplorerState placeOf(const Preferences::Session& session);

}  // namespace hx::studio
