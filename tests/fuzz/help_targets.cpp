// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_html.h"
#include "adapters/qt/help/help_search.h"
#include "adapters/qt/help/help_site_map.h"
#include "adapters/qt/help/help_tables.h"
#include "fuzz/targets.h"

/// What the viewer of the help reads.
namespace hx::fuzz {

namespace {

std::size_t depthOf(const std::vector<qt::HelpEntry>& entries, std::size_t level = 1) {
    std::size_t deepest = level;
    for (const qt::HelpEntry& entry : entries) deepest = std::max(deepest, depthOf(entry.children, level + 1));
    return deepest;
}

}  // namespace

void helpFile(std::string_view bytes) {
    const qt::HelpBook book(QString::fromStdString(fileOf(bytes)));
    if (!book.isOpen()) return;
    require(book.contains(book.startTopic()), "the first topic is there");
    for (const QString& topic : book.topics()) (void)book.titleOf(topic);
    (void)qt::HelpSearch(book).find(QStringLiteral("a"));
}

void helpPage(std::string_view bytes) {
    const QByteArray raw(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const QString html = qt::decodeHelpText(raw);
    (void)qt::plainText(html);
    (void)qt::titleOfHtml(html);
    (void)depthOf(qt::readSiteMap(html));
    (void)qt::readHelpSystem(raw);
    (void)qt::readHelpContexts(raw, raw);
}

}  // namespace hx::fuzz
