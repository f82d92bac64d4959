// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "host/system_services.h"

namespace hx::studio {

/// The recipe system's help, where the add-in looks for it: "helpfiles\Rezeptsystem.chm" in the folder that the
/// registry's value "Common" names. The studio brings it in each language and puts there the one of its own.
class HelpFile {
  public:
    /// The registry is lent. The languages lie in the folders "help/de" and "help/en" of the first of `folders` that
    /// has them. `usualCommon` becomes the folder for all when the registry names none.
    HelpFile(host::Registry& registry, const QStringList& folders, QString usualCommon);

    /// Sees to it that the registry names a folder. Throws automation::Error when it cannot be written.
    void nameCommonFolder();

    enum class Result {
        ready,    ///< the help of this language is there
        foreign,  ///< there is a file that the studio did not put there: it stays
        absent,   ///< the studio brings no help of this language, or the registry names no usable folder
        failed    ///< it cannot be written
    };
    /// Puts the help of the language there, replacing only what the studio put there itself.
    Result install(std::int32_t lcid);

    /// Where the add-in looks, with "/".
    [[nodiscard]] QString path() const;

  private:
    [[nodiscard]] QString source(std::int32_t lcid) const;

    host::Registry& registry_;
    QStringList folders_;
    QString usualCommon_;
};

}  // namespace hx::studio
