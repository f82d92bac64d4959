// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QTemporaryFile>
#include <memory>
#include <optional>

struct chmFile;

namespace hx::qt {

/// The objects of a compiled help file. Their paths begin with "/" and compare ignoring case.
class HelpArchive {
  public:
    /// What happens to the file later does not matter: a copy is read.
    explicit HelpArchive(const QString& file);
    /// False when the file cannot be read or is no sound help file: it then holds nothing.
    [[nodiscard]] bool isOpen() const noexcept { return file_ != nullptr; }

    /// In the order of the file; without folders and what the format itself needs.
    [[nodiscard]] const QStringList& paths() const noexcept { return paths_; }
    [[nodiscard]] bool contains(const QString& path) const { return names_.contains(path.toLower()); }
    /// Nothing when there is no such object, or it cannot be unpacked.
    [[nodiscard]] std::optional<QByteArray> read(const QString& path) const;

  private:
    struct Close {
        void operator()(chmFile* file) const;
    };
    void load(const QByteArray& bytes);
    void list();

    QTemporaryFile copy_;
    std::unique_ptr<chmFile, Close> file_;
    QStringList paths_;
    QHash<QString, QByteArray> names_;  // as written in the file, by the path in small letters
};

}  // namespace hx::qt
