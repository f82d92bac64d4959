// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_site_map.h"

#include <QRegularExpression>
#include <algorithm>

#include "adapters/qt/help/help_html.h"

namespace hx::qt {

namespace {

constexpr std::size_t deepest = 32;
constexpr int mostEntries = 20000, mostTagsOfMap = 8 * mostEntries;

QRegularExpression patternOf(const char* name) {
    return QRegularExpression(
        QStringLiteral("\\b%1\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s>]+))").arg(QLatin1StringView(name)),
        QRegularExpression::CaseInsensitiveOption);
}

QString attribute(const QString& tag, const QRegularExpression& pattern) {
    const auto match = pattern.match(tag);
    for (const int group : {1, 2, 3}) {
        if (match.capturedLength(group) > 0) return decodeEntities(match.captured(group)).simplified();
    }
    return {};
}

/// Takes the tags one after the other: lists open and close levels, objects are entries, parameters what they hold.
class SiteMapReader {
  public:
    void take(const QString& tag) {
        const auto end = std::ranges::find_if(tag, [](QChar c) { return c.isSpace() || c == '>'; });
        const QString name = tag.left(end - tag.begin()).toLower();
        if (name == QStringLiteral("ul")) openLevel();
        else if (name == QStringLiteral("/ul")) closeLevel();
        else if (name == QStringLiteral("object")) entry_ = {};
        else if (name == QStringLiteral("param")) takeParameter(tag);
        else if (name == QStringLiteral("/object")) closeEntry();
    }
    std::vector<HelpEntry> result() { return std::move(top_); }

  private:
    void openLevel() {
        ++depth_;
        if (depth_ > deepest) return;
        auto& level = *levels_.back();
        levels_.push_back(level.empty() ? &level : &level.back().children);
    }
    void closeLevel() {
        if (depth_ == 0) return;
        if (depth_ <= deepest) levels_.pop_back();
        --depth_;
    }
    void takeParameter(const QString& tag) {
        const QString name = attribute(tag, name_).toLower();
        QString* field = name == QStringLiteral("name")    ? &entry_.title
                         : name == QStringLiteral("local") ? &entry_.path
                                                           : nullptr;
        // An entry of an index may have several topics: the first is taken.
        if (field != nullptr && field->isEmpty()) *field = attribute(tag, value_);
    }
    void closeEntry() {
        if (!entry_.title.isEmpty() && count_++ < mostEntries) levels_.back()->push_back(std::move(entry_));
        entry_ = {};
    }

    std::vector<HelpEntry> top_;
    std::vector<std::vector<HelpEntry>*> levels_{&top_};
    std::size_t depth_ = 0;
    int count_ = 0;
    HelpEntry entry_;
    const QRegularExpression name_ = patternOf("name"), value_ = patternOf("value");
};

}  // namespace

std::vector<HelpEntry> readSiteMap(const QString& html) {
    SiteMapReader reader;
    int tags = 0;
    for (qsizetype at = html.indexOf('<'); at >= 0 && tags++ < mostTagsOfMap; at = html.indexOf('<', at)) {
        const qsizetype end = html.indexOf('>', at);
        if (end < 0) break;
        reader.take(html.mid(at + 1, end - at - 1));
        at = end + 1;
    }
    return reader.result();
}

}  // namespace hx::qt
