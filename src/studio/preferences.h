// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

class QSettings;

namespace hx::studio {

/// What the studio remembers between two starts, in the file studio.ini of the configuration folder. Studios that run
/// side by side share it.
class Preferences {
  public:
    explicit Preferences(const QString& folder);

    [[nodiscard]] QByteArray geometry() const;
    [[nodiscard]] QByteArray layout() const;
    /// False when the file cannot be written.
    bool saveWindow(const QByteArray& geometry, const QByteArray& layout);

    /// The latest first, at most `recentCount`.
    static constexpr int recentCount = 8;
    [[nodiscard]] QStringList recent() const;
    bool addRecent(const QString& path);
    bool removeRecent(const QString& path);
    bool clearRecent();
    /// Whether a copy of a project is kept before its first change of a day.
    [[nodiscard]] bool keepsDailyCopies() const;
    bool setKeepsDailyCopies(bool keeps);
    [[nodiscard]] const QString& file() const noexcept { return file_; }

    using Change = std::function<void(QSettings&)>;

  private:
    bool write(const Change& change);
    QString file_;
};

}  // namespace hx::studio
