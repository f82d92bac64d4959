// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace hx::studio {

/// The sample project that the studio brings: "samples/Getraenkelinie.hxs" in the first of these folders that has it;
/// empty when none has.
[[nodiscard]] QString sampleProject(const QStringList& programFolders);
/// Where the user's copy of it lies.
[[nodiscard]] QString copyOfSample();
/// Makes this copy unless there is one already, which may hold the user's work. False when it cannot be written.
[[nodiscard]] bool copySample(const QString& sample);

}  // namespace hx::studio
