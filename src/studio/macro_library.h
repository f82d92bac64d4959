// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace hx::studio {

/// A macro of the user's.
struct MacroFile {
    QString name;  ///< of the file, without ".lua"
    QString path;
    QString hint;  ///< its first line of comment; empty without one
};

/// The macros of a folder by name; numbers in names count as numbers.
struct MacroFolder {
    QString name;
    QList<MacroFile> macros;
};

/// The folder of the user's macros, and the samples that the studio brings.
class MacroLibrary {
  public:
    /// The samples lie in the folder "macros" of the first of `programFolders` that has one.
    MacroLibrary(QString folder, QStringList programFolders);

    [[nodiscard]] const QString& folder() const noexcept { return folder_; }
    /// The macros that lie in the folder itself, and after them those of each folder in it that has some.
    [[nodiscard]] QList<MacroFolder> list() const;
    /// Makes the folder when it is missing; false when that fails.
    [[nodiscard]] bool makeFolder() const;

    [[nodiscard]] bool hasSamples() const { return !samples().isEmpty(); }
    /// Where the samples are copied to.
    [[nodiscard]] QString sampleFolder() const;
    /// Copies the samples that are not there yet; what is there stays as it is. The number of those copied, -1 when
    /// one cannot be written.
    [[nodiscard]] int copySamples() const;

  private:
    [[nodiscard]] QStringList samples() const;
    QString folder_;
    QStringList programFolders_;
};

}  // namespace hx::studio
