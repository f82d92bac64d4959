// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

#include "adapters/qt/help/help_book.h"

namespace hx::qt {

struct HelpHit {
    QString path, title;
    QString excerpt;  ///< the words around the first one found
};

/// Finds topics by words: every word of the query must stand in the topic or its title, ignoring case and accents, also
/// as a part of a longer word. Words in the title count most, then words that begin with what was asked for.
class HelpSearch {
  public:
    /// Reads all topics.
    explicit HelpSearch(const HelpBook& book);
    /// The best first; none for an empty query.
    [[nodiscard]] std::vector<HelpHit> find(const QString& query) const;

  private:
    struct Page {
        QString path, title, text;
        QString foldedTitle, foldedText;
    };
    std::vector<Page> pages_;
};

}  // namespace hx::qt
