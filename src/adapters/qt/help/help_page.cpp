// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_page.h"

#include <QPalette>

#include "adapters/qt/help/help_limits.h"

namespace hx::qt {

namespace {

const QString scheme = QStringLiteral("help");
constexpr qreal margin = 18, readingSize = 1.1;

// A path stays as it is written, with what a URL would take for its own.
QUrl urlOf(const QString& path) {
    QUrl url;
    url.setScheme(scheme);
    url.setPath(helpPath(path), QUrl::DecodedMode);
    if (path.contains('#')) url.setFragment(path.section('#', 1), QUrl::DecodedMode);
    return url;
}

bool isInside(const QUrl& url) { return url.scheme() == scheme && url.host().isEmpty(); }

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("helpPage"));
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(margin);
    QFont reading = font();
    reading.setPointSizeF(reading.pointSizeF() * readingSize);
    setFont(reading);
    // The topics name their colours: they must stand on the paper that they were set for, whatever the desktop's.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, QColor(0x1d, 0x27, 0x30));
    paper.setColor(QPalette::Link, QColor(0x1f, 0x5c, 0x8b));
    paper.setColor(QPalette::LinkVisited, QColor(0x1f, 0x5c, 0x8b));
    setPalette(paper);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
}

void HelpPage::setBook(const HelpBook* book) {
    showsTextAlone_ = false;
    book_ = nullptr;
    current_.clear();
    setSource(QUrl());
    clearHistory();
    clear();
    book_ = book;
}

bool HelpPage::showTopic(const QString& path) {
    if (book_ == nullptr || !book_->contains(path)) return false;
    setSource(urlOf(path));
    return true;
}

QString HelpPage::shownTopic() const { return current_.path(); }

void HelpPage::follow(const QUrl& link) {
    const QUrl target = current_.resolved(link);
    if (!isInside(target)) {
        if (outsideLink) outsideLink(link.toString());
    } else if (book_ == nullptr || !book_->contains(target.path())) {
        if (brokenLink) brokenLink(target.path());
    } else {
        setSource(target);
    }
}

// Never nothing at all: the document would then look for a file of this name on the disk.
QVariant HelpPage::loadResource(int type, const QUrl& name) {
    const QUrl url = current_.resolved(name);
    const bool inside = book_ != nullptr && isInside(url);
    // The page comes before what it names. source() is still the page before while this one is read.
    if (inside && type == QTextDocument::HtmlResource) current_ = url;
    const QByteArray bytes = inside ? book_->read(url.path()).value_or(QByteArray("")) : QByteArray("");
    if (type == QTextDocument::ImageResource) return canBeShown(bytes) ? bytes : QByteArray("");
    const QString text = decodeHelpText(bytes);
    if (type == QTextDocument::StyleSheetResource) return withinRules(text);
    if (type != QTextDocument::HtmlResource) return text;
    rules_ = ruleCount(text);
    showsTextAlone_ = !canBeLaidOut(text);
    return showsTextAlone_ ? textAlone(text) : text;
}

// Each rule is held against each element.
QString HelpPage::withinRules(const QString& sheet) {
    rules_ += ruleCount(sheet);
    return rules_ <= mostRules ? sheet : QString();
}

}  // namespace hx::qt
