// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace hx::qt {

namespace {

constexpr int grip = 80;  // of the title bar, beside its buttons

int nearest(int start, int length, int from, int to) { return std::max(from, std::min(start, to - length)); }

}  // namespace

QPoint placeInside(const QRect& window, const QRect& room) {
    return {nearest(window.left(), window.width(), room.left(), room.left() + room.width()),
            nearest(window.top(), window.height(), room.top(), room.top() + room.height())};
}

QPoint reachablePlace(const QRect& window, int titleHeight, const QRect& room) {
    const QRect seen = QRect(window.topLeft(), QSize(window.width(), titleHeight)) & room;
    const bool reachable = seen.height() == titleHeight && seen.width() >= std::min(grip, window.width());
    return reachable ? window.topLeft() : placeInside(window, room);
}

void placeOver(QWidget& dialog, const QWidget* owner) {
    dialog.adjustSize();
    const QScreen* screen = owner == nullptr ? QGuiApplication::primaryScreen() : owner->screen();
    const QRect free = screen->availableGeometry();
    QRect place = dialog.rect();
    if (owner != nullptr) place.setSize(place.size() + owner->frameSize() - owner->size());  // as wide a frame
    place.moveCenter(owner == nullptr ? free.center() : owner->frameGeometry().center());
    dialog.move(placeInside(place, free));
}

}  // namespace hx::qt
