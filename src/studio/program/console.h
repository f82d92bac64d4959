// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace hx::studio {

/// The program's name and what stands behind it on the command line.
[[nodiscard]] QStringList commandLine(int argc, char** argv);
/// Answers the command line, where the one who wrote it sees it.
void answer(const QString& text);
void complain(const QString& text);

}  // namespace hx::studio
