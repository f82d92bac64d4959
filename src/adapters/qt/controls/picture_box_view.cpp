// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/picture_box_view.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "adapters/qt/controls/surrounding_form.h"

namespace hx::qt {

namespace {

constexpr int gripDots = 5;
constexpr int leastWidth = 5;

}  // namespace

PictureBoxView::PictureBoxView(forms::PictureBox& box, SurroundingForm& form, QWidget& area)
    : ControlView(box, form), area_(&area) {
    area_.setAttribute(Qt::WA_Hover);
    watch(area_);
}

void PictureBoxView::layOut() {
    ControlView::layOut();
    QRect rect = area_.geometry();
    rect.setWidth(std::max(rect.width(), leastWidth));
    rect.moveRight(std::min(rect.right(), area_.parentWidget()->width() - 1));  // or nobody could catch it again
    rect.setBottom(std::min(rect.bottom(), form().freeBottom(*area_.parentWidget(), rect.bottom() + 1) - 1));
    area_.setGeometry(rect);
    area_.setCursor(rect.height() > rect.width() ? Qt::SplitHCursor : Qt::ArrowCursor);
    area_.raise();
}

void PictureBoxView::paint() {
    QPainter painter(&area_);
    const bool held = area_.underMouse();
    const QPalette& palette = area_.palette();
    painter.fillRect(area_.rect(), held ? palette.highlight() : palette.button());
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawLine(area_.rect().topLeft(), area_.rect().bottomLeft());
    painter.drawLine(area_.rect().topRight(), area_.rect().bottomRight());
    painter.setPen(palette.color(held ? QPalette::HighlightedText : QPalette::Dark));
    const QPoint middle = area_.rect().center();
    for (int dot = -gripDots / 2; dot <= gripDots / 2; ++dot) painter.drawPoint(middle.x(), middle.y() + dot * 4);
}

bool PictureBoxView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        paint();
        return true;
    }
    return ControlView::eventFilter(watched, event);
}

}  // namespace hx::qt
