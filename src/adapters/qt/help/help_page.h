// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>
#include <functional>

#include "adapters/qt/help/help_book.h"

namespace hx::qt {

/// Shows topics of a help book, black on white as they are set. Everything comes from the book: nothing is read from
/// the disk or the network.
class HelpPage : public QTextBrowser {
  public:
    explicit HelpPage(QWidget* parent);
    /// Another book, or none; it is lent. Forgets what was shown.
    void setBook(const HelpBook* book);
    /// Shows a topic, at an anchor when the path has one behind "#". False when there is none.
    bool showTopic(const QString& path);
    /// The path of the topic that is shown; empty for none.
    [[nodiscard]] QString shownTopic() const;

    /// Whether that is a topic of which only the text is shown: setting it would take too long.
    [[nodiscard]] bool showsTextAlone() const noexcept { return showsTextAlone_; }

    /// Called with a link that leads out of the book, and with the path of one to a topic that is not there.
    std::function<void(const QString&target)> outsideLink, brokenLink;

    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void follow(const QUrl& link);
    [[nodiscard]] QString withinRules(const QString& sheet);

    const HelpBook* book_ = nullptr;
    QUrl current_;
    qsizetype rules_ = 0;  ///< of the style sheets of the topic
    bool showsTextAlone_ = false;
};

}  // namespace hx::qt
