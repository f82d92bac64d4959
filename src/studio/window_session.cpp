// SPDX-License-Identifier: MIT
#include "studio/window_session.h"

#include <QDockWidget>
#include <QHeaderView>

#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

QList<QHeaderView*> listHeaders(const QMainWindow& window) {
    QList<QHeaderView*> headers;
    for (const QDockWidget* dock : window.findChildren<QDockWidget*>()) headers += dock->findChildren<QHeaderView*>();
    headers.removeIf([](const QHeaderView* header) {
        return header->isHidden() || header->orientation() != Qt::Horizontal ||
               header->parent()->objectName().isEmpty();
    });
    return headers;
}

}  // namespace

Preferences::Columns columnsOf(const QMainWindow& window) {
    Preferences::Columns columns;
    for (const QHeaderView* header : listHeaders(window)) columns[header->parent()->objectName()] = header->saveState();
    return columns;
}

void restoreColumns(const QMainWindow& window, const Preferences::Columns& columns) {
    for (QHeaderView* header : listHeaders(window)) header->restoreState(columns.value(header->parent()->objectName()));
}

Preferences::Session sessionOf(const QString& file, const ExplorerState& place) {
    Preferences::Session session;
    session.file = file;
    session.node = qt::toQt(place.node);
    session.row = place.row;
    session.scrolled = place.scrolled;
    for (const std::string& node : place.expanded) session.expanded << qt::toQt(node);
    return session;
}

ExplorerState placeOf(const Preferences::Session& session) {
    ExplorerState place{{}, session.scrolled, qt::fromQt(session.node), session.row};
    for (const QString& node : session.expanded) place.expanded.push_back(qt::fromQt(node));
    return place;
}

}  // namespace hx::studio
