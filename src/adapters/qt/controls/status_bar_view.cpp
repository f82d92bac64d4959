// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/status_bar_view.h"

#include "adapters/qt/text.h"

namespace hx::qt {

StatusBarView::StatusBarView(forms::StatusBar& bar, SurroundingForm& form, QWidget& area)
    : ControlView(bar, form), frame_(&area), row_(&frame_) {
    row_.setContentsMargins(2, 2, 2, 2);
    row_.setSpacing(2);
    frame_.setAutoFillBackground(true);
    for (std::int32_t number = 1; number <= bar.panelCount(); ++number) {
        PlainLabel& label = *panels_.emplace_back(std::make_unique<PlainLabel>());
        label.setObjectName(QStringLiteral("%1.Panels(%2)").arg(toQt(bar.name())).arg(number));
        label.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        label.setContentsMargins(4, 0, 4, 0);
        row_.addWidget(&label, number == 1 ? 2 : 1);
        forms::Panel& panel = bar.panel(number);
        const auto follow = [&label, &panel] { label.setText(toQt(panel.text())); };
        changes_.push_back(panel.changed.subscribe(follow));
        follow();
    }
    watch(frame_);
}

void StatusBarView::detach() {
    changes_.clear();
    ControlView::detach();
}

void StatusBarView::fitHeight() {
    forms::Control& bar = *model();
    const double natural = units().twips(frame_.sizeHint().height());
    if (bar.height() < natural) bar.setHeight(natural);
}

void StatusBarView::layOut() {
    ControlView::layOut();
    frame_.raise();
}

void StatusBarView::show(std::string_view property) {
    ControlView::show(property);
    if (property == "Font") fitHeight();
}

}  // namespace hx::qt
