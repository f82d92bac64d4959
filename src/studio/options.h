// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace hx::studio {

/// What the command line says.
struct Options {
    QString configFolder;                  ///< empty: the user's
    std::optional<std::int32_t> language;  ///< a locale identifier, to be kept for later starts too
    QString file;                          ///< project to open; empty for none
    bool empty = false;                    ///< without the project that was open last
    bool help = false;
    bool version = false;
    QString error;  ///< what is wrong with the command line; empty when nothing is
};

/// `arguments` begin with the program's name.
[[nodiscard]] Options parseOptions(const QStringList& arguments);
[[nodiscard]] QString usageText();
[[nodiscard]] QString versionText();

}  // namespace hx::studio
