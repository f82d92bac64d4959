// SPDX-License-Identifier: MIT
#include "studio/document_area.h"

#include <QEvent>

namespace hx::studio {

DocumentArea::DocumentArea() {
    setObjectName(QStringLiteral("documentArea"));
    setBackground(palette().brush(QPalette::Mid));
    setOption(DontMaximizeSubWindowOnActivation);
}

void DocumentArea::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) setBackground(palette().brush(QPalette::Mid));
    QMdiArea::changeEvent(event);
}

}  // namespace hx::studio
