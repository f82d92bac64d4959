// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
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
    /// The columns of the window's lists, by the lists' names.
    using Columns = QHash<QString, QByteArray>;
    [[nodiscard]] Columns columns() const;
    /// False when the file cannot be written.
    bool saveWindow(const QByteArray& geometry, const QByteArray& layout, const Columns& columns = {});

    /// Where the user was when the studio was left.
    struct Session {
        QString file;  ///< the project; empty for none
        QStringList expanded;
        QString node, filter;
        int row = -1, scrolled = 0;
        bool byName = false;
        friend bool operator==(const Session&, const Session&) = default;
    };
    [[nodiscard]] Session session() const;
    bool saveSession(const Session& session);
    /// Whether a start goes on there.
    [[nodiscard]] bool reopens() const;
    bool setReopens(bool reopens);

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
