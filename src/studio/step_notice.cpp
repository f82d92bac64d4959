// SPDX-License-Identifier: MIT
#include "studio/step_notice.h"

#include <QHBoxLayout>
#include <QStyle>

#include "adapters/qt/text.h"

namespace hx::studio {

StepNotice::StepNotice(QStatusBar& bar, QAction& undo) : bar_(bar) {
    setObjectName(QStringLiteral("stepNotice"));
    text_.setObjectName(QStringLiteral("stepNoticeText"));
    text_.setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    text_.setMinimumWidth(1);  // a long name must not widen the window
    undo_.setObjectName(QStringLiteral("stepNoticeUndo"));
    undo_.setAutoDefault(false);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon_.setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    for (QWidget* part : {static_cast<QWidget*>(&icon_), static_cast<QWidget*>(&text_), static_cast<QWidget*>(&undo_)})
        row->addWidget(part);
    connect(&undo_, &QPushButton::clicked, &undo, &QAction::trigger);
    bar.addWidget(this);
    hide();
}

void StepNotice::tell(const QString& text) {
    if (!text.isEmpty()) bar_.clearMessage();  // which would hide it
    text_.setText(text);
    text_.setToolTip(qt::plainToolTip(text));
    undo_.setAccessibleDescription(text);
    setVisible(!text.isEmpty());
}

}  // namespace hx::studio
