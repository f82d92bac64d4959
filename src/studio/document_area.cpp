// SPDX-License-Identifier: MIT
#include "studio/document_area.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <algorithm>

namespace hx::studio {

DocumentArea::DocumentArea() {
    setObjectName(QStringLiteral("documentArea"));
    setBackground(palette().brush(QPalette::Mid));
    setOption(DontMaximizeSubWindowOnActivation);
}

void DocumentArea::setHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
}

void DocumentArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    const auto windows = subWindowList();
    if (std::ranges::any_of(windows, [](const QMdiSubWindow* window) { return window->isVisible(); })) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::BrightText).lightness() > 128 ? palette().color(QPalette::WindowText)
                                                                           : palette().color(QPalette::Text));
    painter.setOpacity(0.7);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

}  // namespace hx::studio
