// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <optional>

#include "adapters/qt/help/help_archive.h"
#include "adapters/qt/help/help_site_map.h"
#include "adapters/qt/help/help_tables.h"

namespace hx::qt {

/// A compiled help file as a reader sees it: topics, their contents, their context numbers. Paths of topics begin with
/// "/"; one that is given may lack it, and may carry an anchor, which is not looked at.
class HelpBook {
  public:
    explicit HelpBook(const QString& file);
    /// False when the file cannot be read, is no sound help file, or holds no topic.
    [[nodiscard]] bool isOpen() const noexcept { return !topics_.isEmpty(); }

    [[nodiscard]] const QString& title() const noexcept { return system_.title; }
    /// Of the file's table of contents; all topics, one after the other, when it has none.
    [[nodiscard]] const std::vector<HelpEntry>& contents() const noexcept { return contents_; }
    [[nodiscard]] const QStringList& topics() const noexcept { return topics_; }
    /// What to begin with: always a topic that there is.
    [[nodiscard]] const QString& startTopic() const noexcept { return start_; }
    /// The topics by context number, those left out that are not there.
    [[nodiscard]] const QMap<std::int32_t, QString>& contexts() const noexcept { return contexts_; }

    [[nodiscard]] bool contains(const QString& path) const;
    [[nodiscard]] std::optional<QByteArray> read(const QString& path) const;
    /// The HTML of a topic; empty when there is none.
    [[nodiscard]] QString topic(const QString& path) const;
    /// From the contents, else from the topic, else its path.
    [[nodiscard]] QString titleOf(const QString& path) const;

  private:
    void readContents();
    void collectTitles(const std::vector<HelpEntry>& entries);
    void readContexts();

    HelpArchive archive_;
    HelpSystem system_;
    QStringList topics_;
    QString start_;
    std::vector<HelpEntry> contents_;
    QMap<std::int32_t, QString> contexts_;
    QMap<QString, QString> titles_;  // by the path in small letters
};

/// The path as the file knows it: with "/" before it and without an anchor.
[[nodiscard]] QString helpPath(const QString& path);

}  // namespace hx::qt
