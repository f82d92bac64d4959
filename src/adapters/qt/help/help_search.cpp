// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_search.h"

#include <algorithm>

#include "adapters/qt/help/help_html.h"

namespace hx::qt {

namespace {

constexpr int titleWeight = 50, wordWeight = 3, partWeight = 1, mostCounted = 20;
constexpr qsizetype mostRead = 64 << 20;  // of a file with more, the titles alone are searched
constexpr qsizetype excerptBefore = 40, excerptLength = 140;

// Small letters without accents; as long as the text, so that a place in one is a place in the other.
QString folded(const QString& text) {
    QString result = text;
    for (QChar& c : result) {
        const QString parts = c.decomposition();
        const bool accented = c.decompositionTag() == QChar::Canonical && !parts.isEmpty();
        c = (accented ? parts.front() : c).toCaseFolded();
    }
    return result;
}

bool beginsWord(const QString& text, qsizetype at) { return at == 0 || !text[at - 1].isLetterOrNumber(); }

int weightIn(const QString& text, const QString& word) {
    int weight = 0, count = 0;
    for (qsizetype at = text.indexOf(word); at >= 0 && count < mostCounted; at = text.indexOf(word, at + word.size())) {
        weight += beginsWord(text, at) ? wordWeight : partWeight;
        ++count;
    }
    return weight;
}

QString excerptAround(const QString& text, qsizetype place) {
    qsizetype from = std::max<qsizetype>(0, place - excerptBefore);
    while (from > 0 && !text[from - 1].isSpace()) --from;
    const QString part = text.mid(from, excerptLength);
    const bool cut = from + excerptLength < text.size();
    return (from > 0 ? QStringLiteral("… ") : QString()) +
           (cut ? part.section(' ', 0, -2) + QStringLiteral(" …") : part);
}

}  // namespace

HelpSearch::HelpSearch(const HelpBook& book) {
    qsizetype read = 0;
    for (const QString& path : book.topics()) {
        const QString title = book.titleOf(path), html = read < mostRead ? book.topic(path) : QString();
        read += html.size();
        const QString text = plainText(html);
        pages_.push_back({path, title, text, folded(title), folded(text)});
    }
}

std::vector<HelpHit> HelpSearch::find(const QString& query) const {
    const QStringList words = folded(query).split(' ', Qt::SkipEmptyParts);
    std::vector<std::pair<int, HelpHit>> found;
    for (const Page& page : pages_) {
        int total = 0;
        bool all = !words.isEmpty();
        for (const QString& word : words) {
            const int weight = titleWeight * weightIn(page.foldedTitle, word) + weightIn(page.foldedText, word);
            all = all && weight > 0;
            total += weight;
        }
        if (!all) continue;
        const qsizetype place = std::max<qsizetype>(0, page.foldedText.indexOf(words.front()));
        found.push_back({total, {page.path, page.title, excerptAround(page.text, place)}});
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const auto& hit) { return hit.first; });
    std::vector<HelpHit> hits;
    for (auto& [weight, hit] : found) hits.push_back(std::move(hit));
    return hits;
}

}  // namespace hx::qt
