// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/band_menu.h"

#include <QMouseEvent>
#include <QTimer>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

void BandMenu::open(forms::Tool& menuTool) {
    if (bar_ == nullptr) return;
    bar_->menuOpening(menuTool);
    forms::Band& band = bar_->band(automation::Variant(menuTool.subBand()));
    const bool opens = bar_->openBand(band);
    fill(opens ? forms::Bar::subMenuTools(band) : std::vector<forms::Tool*>());
    if (!opens) QTimer::singleShot(0, this, &QMenu::close);
}

void BandMenu::fill(const std::vector<forms::Tool*>& tools) {
    clear();
    tools_.clear();
    subMenus_.clear();
    for (forms::Tool* tool : tools) add(*tool);
}

void BandMenu::add(forms::Tool& tool) {
    if (tool.kind() == forms::ToolKind::separator) {
        addSeparator();
        return;
    }
    QAction* action = nullptr;
    if (tool.kind() == forms::ToolKind::menu) {
        auto& menu = *subMenus_.emplace_back(new BandMenu(*bar_, chosen_));
        connect(&menu, &QMenu::aboutToShow, &menu, [&menu, &tool] { menu.open(tool); });
        action = addMenu(&menu);
    } else {
        action = addAction(QString());
        connect(action, &QAction::triggered, this, [this, &tool] { chosen_(tool); });
    }
    const QString shortcut = toQt(bar_->shortcutText(tool));
    const QString caption = toQt(tool.caption());
    action->setText(shortcut.isEmpty() ? caption : caption + '\t' + shortcut);
    action->setObjectName(toQt(tool.name()));
    action->setIcon(svgIcon(tool.picture()));
    const bool title = tool.kind() == forms::ToolKind::title;
    action->setEnabled(tool.enabled() && !title);
    if (title) action->setFont(bold(font()));
    tools_.emplace_back(action, std::static_pointer_cast<forms::Tool>(tool.share()));
}

void BandMenu::mouseReleaseEvent(QMouseEvent* event) {
    const QAction* action = actionAt(event->position().toPoint());
    if (action == nullptr || action->isEnabled()) return QMenu::mouseReleaseEvent(event);
    for (const auto& [known, tool] : tools_) {
        if (known == action && tool->kind() == forms::ToolKind::command && bar_ != nullptr) return chosen_(*tool);
    }
}

}  // namespace hx::qt
