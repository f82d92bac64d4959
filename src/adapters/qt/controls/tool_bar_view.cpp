// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/tool_bar_view.h"

#include <QAction>
#include <QToolButton>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr int iconSize = 18;

}  // namespace

ToolBarView::ToolBarView(forms::ToolBar& bar, SurroundingForm& form, QWidget& area)
    : ControlView(bar, form), bar_(&area) {
    bar_.setMovable(false);
    bar_.setIconSize(QSize(iconSize, iconSize));
    bar_.setAutoFillBackground(true);
    for (const auto& button : bar.buttons()) addButton(*button);
    watch(bar_);
}

void ToolBarView::addButton(forms::ToolButton& button) {
    if (button.separatorBefore) bar_.addSeparator();
    QAction* action = bar_.addAction(svgIcon(button.picture()), QString());
    QWidget* widget = bar_.widgetForAction(action);
    widget->setObjectName(objectNameOf(*model()) + '.' + toQt(button.key()));
    widget->setFocusPolicy(Qt::NoFocus);  // the keyboard has the same commands in the menus
    const auto follow = [action, widget, &button] {
        const QString tip = toQt(button.toolTipText());
        action->setText(tip);
        action->setToolTip(plainToolTip(tip));
        action->setEnabled(button.enabled());
        widget->setAccessibleName(tip.isEmpty() ? toQt(button.key()) : tip);
    };
    changes_.push_back(button.changed.subscribe(follow));
    follow();
    connect(
        action, &QAction::triggered, this, [this, &button] { click(button); }, Qt::QueuedConnection);
}

void ToolBarView::click(forms::ToolButton& button) {
    if (model() == nullptr) return;
    const auto keep = model()->share();
    const auto keepForm = form().model()->share();
    form().settle();
    if (auto* bar = modelOf<forms::ToolBar>(*this)) bar->click(button);
}

void ToolBarView::detach() {
    changes_.clear();
    ControlView::detach();
}

void ToolBarView::show(std::string_view property) {
    ControlView::show(property);
    if (property != "Font") return;
    const double natural = units().twips(bar_.sizeHint().height());
    if (model()->height() < natural) model()->setHeight(natural);
}

}  // namespace hx::qt
