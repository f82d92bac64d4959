// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_book.h"

#include "adapters/qt/help/help_html.h"

namespace hx::qt {

namespace {

bool isTopic(const QString& path) {
    return path.endsWith(QStringLiteral(".htm"), Qt::CaseInsensitive) ||
           path.endsWith(QStringLiteral(".html"), Qt::CaseInsensitive);
}

QByteArray bytesOf(const HelpArchive& archive, const char* path) {
    return archive.read(QString::fromLatin1(path)).value_or(QByteArray());
}

}  // namespace

QString helpPath(const QString& path) {
    const QString plain = path.section('#', 0, 0);
    return plain.isEmpty() || plain.startsWith('/') ? plain : '/' + plain;
}

HelpBook::HelpBook(const QString& file) : archive_(file) {
    if (!archive_.isOpen()) return;
    system_ = readHelpSystem(bytesOf(archive_, "/#SYSTEM"));
    for (const QString& path : archive_.paths()) {
        if (isTopic(path)) topics_.append(path);
    }
    readContents();
    readContexts();
    start_ = contains(system_.start) ? helpPath(system_.start) : topics_.value(0);
}

void HelpBook::readContents() {
    if (!system_.contents.isEmpty()) {
        contents_ = readSiteMap(decodeHelpText(archive_.read(helpPath(system_.contents)).value_or(QByteArray())));
    }
    collectTitles(contents_);
    if (!contents_.empty()) return;
    for (const QString& path : topics_) contents_.push_back({titleOf(path), path, {}});
}

void HelpBook::collectTitles(const std::vector<HelpEntry>& entries) {
    for (const HelpEntry& entry : entries) {
        const QString key = helpPath(entry.path).toLower();
        if (!key.isEmpty() && !titles_.contains(key)) titles_.insert(key, entry.title);
        collectTitles(entry.children);
    }
}

void HelpBook::readContexts() {
    const auto all = readHelpContexts(bytesOf(archive_, "/#IVB"), bytesOf(archive_, "/#STRINGS"));
    for (auto at = all.begin(); at != all.end(); ++at) {
        if (contains(at.value())) contexts_.insert(at.key(), helpPath(at.value()));
    }
}

bool HelpBook::contains(const QString& path) const { return archive_.isOpen() && archive_.contains(helpPath(path)); }

std::optional<QByteArray> HelpBook::read(const QString& path) const { return archive_.read(helpPath(path)); }

QString HelpBook::topic(const QString& path) const { return decodeHelpText(read(path).value_or(QByteArray())); }

QString HelpBook::titleOf(const QString& path) const {
    const auto known = titles_.constFind(helpPath(path).toLower());
    if (known != titles_.constEnd()) return known.value();
    const QString own = titleOfHtml(topic(path));
    return own.isEmpty() ? helpPath(path).mid(1) : own;
}

}  // namespace hx::qt
