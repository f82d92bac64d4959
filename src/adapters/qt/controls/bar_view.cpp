// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/bar_view.h"

#include <QAction>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

BarView::BarView(forms::Bar& bar, SurroundingForm& form, QWidget& area) : ControlView(bar, form), menuBar_(&area) {
    menuBar_.setNativeMenuBar(false);
    watch(menuBar_);
    toolsChanged_ = bar.mainBand().toolsChanged.subscribe([this] { rebuild(); });
    rebuild();
}

void BarView::rebuild() {
    auto& bar = *modelOf<forms::Bar>(*this);
    changes_.clear();
    for (const auto& tool : bar.mainBand().tools()) {
        if (tool->kind() == forms::ToolKind::menu) changes_.push_back(tool->changed.subscribe([this] { rebuild(); }));
    }
    const auto tools = bar.menuTools();
    if (tools != tools_) {
        tools_ = tools;
        menuBar_.clear();
        menus_.clear();
        for (forms::Tool* tool : tools_) addMenu(*tool);
    }
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        QAction& action = *menus_[i]->menuAction();
        action.setText(toQt(tools_[i]->caption()));
        action.setIcon(svgIcon(tools_[i]->picture()));
        action.setEnabled(tools_[i]->enabled());
    }
}

void BarView::addMenu(forms::Tool& tool) {
    const auto click = [this](forms::Tool& chosen) { this->click(chosen); };
    auto& menu = *menus_.emplace_back(new BandMenu(*modelOf<forms::Bar>(*this), click));
    menu.setObjectName(toQt(tool.name()));
    menuBar_.addMenu(&menu);
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu, &tool] {
        form().settle();
        menu.open(tool);
    });
}

void BarView::click(forms::Tool& tool) {
    // The command may end the window: it runs when the menu is gone from the stack.
    const auto keep = std::static_pointer_cast<forms::Tool>(tool.share());
    QMetaObject::invokeMethod(
        this,
        [this, keep] {
            if (model() == nullptr) return;
            const auto keepBar = model()->share();
            const auto keepForm = form().model()->share();
            form().settle();
            if (auto* bar = modelOf<forms::Bar>(*this)) bar->click(*keep);
        },
        Qt::QueuedConnection);
}

void BarView::containerResized() {
    auto& bar = *modelOf<forms::Bar>(*this);
    const QSize area = menuBar_.parentWidget()->size();
    const int height = menuBar_.heightForWidth(area.width());
    menuBar_.setGeometry(0, 0, area.width(), height);
    bar.mainBand().heightReported(units().twips(height));
    bar.clientAreaReported(units().twips(area.width()), units().twips(area.height() - height));
}

void BarView::detach() {
    toolsChanged_.reset();
    changes_.clear();
    for (const auto& menu : menus_) menu->detach();
    ControlView::detach();
}

void BarView::show(std::string_view property) {
    if (property != "TabStop") ControlView::show(property);
    if (property == "Font") containerResized();
}

}  // namespace hx::qt
