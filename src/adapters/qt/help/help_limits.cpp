// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_limits.h"

#include <QBuffer>
#include <QImageReader>
#include <QStringList>

#include "adapters/qt/help/help_html.h"

namespace hx::qt {

namespace {

constexpr qsizetype longestTopic = qsizetype{256} * 1024, longestRun = 20'000, longestText = 20'000;
constexpr int mostTags = 10'000, mostResources = 300, mostSpan = 1000;
constexpr qsizetype deepestElements = 100, deepestTables = 6;
constexpr qint64 mostPixels = 16 << 20;

/// Reads the tags of a topic as QTextDocument does, so that it counts what is laid out.
class Scan {
  public:
    explicit Scan(const QString& html) : text_(html) {}

    bool isModest() {
        if (text_.size() > longestTopic || ruleCount(text_) > mostRules) return false;
        while (modest_ && at_ < text_.size()) {
            const QChar c = text_[at_++];
            if (c == '<') readTag();
            else countRun(c);
        }
        return modest_;
    }

  private:
    void require(bool holds) { modest_ = modest_ && holds; }

    void countRun(QChar c) {
        run_ = c.isSpace() ? 0 : run_ + 1;
        require(run_ <= longestRun);
    }

    void readTag() {
        run_ = 0;
        require(++tags_ <= mostTags);
        skipSpace();
        if (take('!')) return skipDeclaration();
        if (take('/')) {
            close(word().toLower());
        } else {
            open(word().toLower());
            if (at_ < text_.size() && text_[at_].isSpace()) readAttributes();
        }
        skipBehind(QStringLiteral(">"));
    }

    void readAttributes() {
        while (at_ < text_.size()) {
            skipSpace();
            if (atTagEnd()) return;
            const qsizetype before = at_;
            const QString key = word().toLower();
            skipSpace();
            if (take('=')) {
                skipSpace();
                const QString value = word();
                if (key == QStringLiteral("colspan") || key == QStringLiteral("rowspan")) {
                    require(value.toInt() <= mostSpan);
                }
            }
            if (at_ == before) return;
        }
    }

    void open(const QString& name) {
        static const QStringList resources{QStringLiteral("img"), QStringLiteral("link")};
        // What has no end, and what ends where the next one of its kind begins.
        static const QStringList flat{QStringLiteral("br"),    QStringLiteral("hr"),    QStringLiteral("meta"),
                                      QStringLiteral("input"), QStringLiteral("p"),     QStringLiteral("li"),
                                      QStringLiteral("td"),    QStringLiteral("th"),    QStringLiteral("tr"),
                                      QStringLiteral("tbody"), QStringLiteral("thead"), QStringLiteral("tfoot"),
                                      QStringLiteral("dd"),    QStringLiteral("dt"),    QStringLiteral("param")};
        if (resources.contains(name)) return require(++resources_ <= mostResources);
        if (flat.contains(name)) return;
        open_.append(name);
        if (name == QStringLiteral("table")) ++tables_;
        require(open_.size() <= deepestElements && tables_ <= deepestTables);
    }

    // What has been left open inside ends too.
    void close(const QString& name) {
        if (!open_.contains(name)) return;
        for (bool found = false; !found;) {
            const QString last = open_.takeLast();
            if (last == QStringLiteral("table")) --tables_;
            found = last == name;
        }
    }

    void skipDeclaration() {
        if (!QStringView(text_).sliced(at_).startsWith(QStringLiteral("--"))) return skipBehind(QStringLiteral(">"));
        at_ += 2;
        skipBehind(QStringLiteral("-->"));
    }

    QString word() {
        for (const QChar quote : {QChar('"'), QChar('\'')}) {
            if (!take(quote)) continue;
            const qsizetype begin = at_;
            skipBehind(quote);
            return text_.mid(begin, at_ - begin - 1);
        }
        const qsizetype begin = at_;
        while (at_ < text_.size() && !atTagEnd() && !text_[at_].isSpace() && text_[at_] != '<' && text_[at_] != '=') {
            ++at_;
        }
        return text_.mid(begin, at_ - begin);
    }

    bool atTagEnd() const {
        return at_ < text_.size() && (text_[at_] == '>' || text_.mid(at_, 2) == QStringLiteral("/>"));
    }
    bool take(QChar c) {
        if (at_ >= text_.size() || text_[at_] != c) return false;
        ++at_;
        return true;
    }
    void skipSpace() {
        while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
    }
    void skipBehind(const QString& mark) {
        const qsizetype found = text_.indexOf(mark, at_);
        at_ = found < 0 ? text_.size() : found + mark.size();
    }

    const QString& text_;
    qsizetype at_ = 0, run_ = 0;
    int tags_ = 0, resources_ = 0;
    qsizetype tables_ = 0;
    QStringList open_;
    bool modest_ = true;
};

}  // namespace

bool canBeLaidOut(const QString& html) { return Scan(html).isModest(); }

QString textAlone(const QString& html) {
    return QStringLiteral("<p>%1</p>").arg(plainText(html.left(longestTopic)).left(longestText).toHtmlEscaped());
}

qsizetype ruleCount(const QString& sheet) { return sheet.count('{'); }

// Of the dimensions a picture tells before it is unpacked.
bool canBeShown(const QByteArray& picture) {
    QBuffer buffer;
    buffer.setData(picture);
    QImageReader reader(&buffer);
    if (!QList<QByteArray>{"png", "jpeg", "gif", "bmp"}.contains(reader.format())) return false;
    const QSize size = reader.size();
    return size.isValid() && qint64{size.width()} * size.height() <= mostPixels;
}

}  // namespace hx::qt
