// SPDX-License-Identifier: MIT
#include "studio/history_dock.h"

#include <QDateTime>
#include <QVBoxLayout>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::studio {

void HistoryModel::setHistory(const history::History* history) {
    beginResetModel();
    history_ = history;
    endResetModel();
}

void HistoryModel::refresh() {
    beginResetModel();
    endResetModel();
}

int HistoryModel::currentRow() const { return history_ == nullptr ? -1 : static_cast<int>(history_->position()); }

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || history_ == nullptr ? 0 : static_cast<int>(history_->steps().size()) + 1;
}

QString HistoryModel::textOf(int row) const {
    if (row == 0) return wording_.translate("studio", "(project as it was opened)");
    return qt::toQt(
        history_->steps()[static_cast<std::size_t>(row) - 1].name.text(automation::languageOf(wording_.language())));
}

QString HistoryModel::toolTipOf(int row) const {
    if (row == 0) return textOf(row);
    const history::Step& step = history_->steps()[static_cast<std::size_t>(row) - 1];
    QString text = textOf(row) + QLatin1Char('\n') +
                   wording_.locale().toString(QDateTime::fromSecsSinceEpoch(step.time), QLocale::ShortFormat);
    if (step.fromBefore) text += QLatin1Char('\n') + wording_.translate("studio", "changed in the last session");
    return text;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || history_ == nullptr) return {};
    const int row = index.row();
    switch (role) {
        case Qt::DisplayRole: return textOf(row);
        case Qt::FontRole: {
            QFont font = view_.font();
            font.setBold(row == currentRow());
            font.setItalic(row > 0 && history_->steps()[static_cast<std::size_t>(row) - 1].fromBefore);
            return font;
        }
        case Qt::ForegroundRole:
            return row > currentRow() ? QVariant(QPalette().brush(QPalette::Disabled, QPalette::Text)) : QVariant();
        case Qt::ToolTipRole: return qt::plainToolTip(toolTipOf(row));
        default: return {};
    }
}

HistoryDock::HistoryDock(QWidget& window, QAction& undo, QAction& redo, const qt::Wording& wording,
                         std::function<void(std::size_t position)> goTo)
    : QDockWidget(&window),
      wording_(wording),
      panel_(this),
      tools_(&panel_),
      list_(&panel_),
      model_(wording, list_, this) {
    setObjectName(QStringLiteral("historyDock"));
    list_.setObjectName(QStringLiteral("historyList"));
    list_.setModel(&model_);
    list_.setUniformItemSizes(true);
    list_.setFrameShape(QFrame::NoFrame);
    list_.setTextElideMode(Qt::ElideRight);
    list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int iconSize = 16;
    tools_.setIconSize(QSize(iconSize, iconSize));
    tools_.addActions({&undo, &redo});
    auto* const rows = new QVBoxLayout(&panel_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(&tools_);
    rows->addWidget(&list_, 1);
    setWidget(&panel_);
    connect(&list_, &QListView::activated, this,
            [goTo = std::move(goTo)](const QModelIndex& index) { goTo(static_cast<std::size_t>(index.row())); });
    retranslate();
    hide();
}

void HistoryDock::setHistory(const history::History* history) {
    model_.setHistory(history);
    refresh();
}

void HistoryDock::refresh() {
    model_.refresh();
    const QModelIndex current = model_.index(model_.currentRow());
    list_.setCurrentIndex(current);
    list_.scrollTo(current);
}

void HistoryDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "History"));
    list_.setAccessibleName(windowTitle());
    refresh();
}

}  // namespace hx::studio
