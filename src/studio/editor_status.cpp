// SPDX-License-Identifier: MIT
#include "studio/editor_status.h"

#include <QApplication>

#include "adapters/qt/text.h"
#include "studio/recipe_branch.h"

namespace hx::studio {

namespace {

constexpr int gap = 8, recipeWidth = 32;  // pixels, characters

// A long name is cut off, and told by the tool tip.
void showName(qt::PlainLabel& label, const QString& name) {
    const int room = label.fontMetrics().averageCharWidth() * recipeWidth;
    label.setText(label.fontMetrics().elidedText(name, Qt::ElideMiddle, room));
    label.setToolTip(label.text() == name ? QString() : qt::plainToolTip(name));
}

}  // namespace

EditorStatus::EditorStatus(QStatusBar& bar, qt::QtExplorer& explorer, qt::ExplorerTree& tree,
                           const Navigator& navigator, HistoryCommands& history, const qt::Wording& wording)
    : explorer_(explorer), navigator_(navigator), history_(history), wording_(wording) {
    const std::pair<qt::PlainLabel*, const char*> labels[] = {
        {&recipe_, "statusRecipe"}, {&rows_, "statusRows"}, {&stored_, "statusStored"}};
    for (const auto& [label, name] : labels) {
        label->setObjectName(QLatin1StringView(name));
        label->setContentsMargins(gap, 0, gap, 0);
        bar.addPermanentWidget(label);
    }
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    connect(&soon_, &QTimer::timeout, this, [this] { show(); });
    connect(tree.selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { refresh(); });
    connect(qApp, &QApplication::focusChanged, this, [this] { refresh(); });
    // The texts of undo follow each change.
    connect(history.actions().constFirst(), &QAction::changed, this, [this] { refresh(); });
    show();
}

// The editor makes its grid when it is opened.
void EditorStatus::follow() {
    const std::shared_ptr<forms::Grid> grid = navigator_.grid();
    if (grid == grid_.lock()) return;
    grid_ = grid;
    subscriptions_.clear();
    if (!grid) return;
    subscriptions_.push_back(grid->rowsChanged.subscribe([this] { refresh(); }));
    subscriptions_.push_back(grid->currentCellChanged.subscribe([this] { refresh(); }));
    subscriptions_.push_back(grid->rowChanged.subscribe([this](std::int32_t) { refresh(); }));
    subscriptions_.push_back(grid->selectedRows().changed.subscribe([this] { refresh(); }));
    subscriptions_.push_back(grid->changed.subscribe([this](std::string_view) { refresh(); }));
}

QString EditorStatus::rowsText() const {
    const std::shared_ptr<forms::Grid> grid = grid_.lock();
    if (!grid || !grid->visible()) return {};
    const auto rows = static_cast<std::size_t>(grid->rowCount());
    const auto marked = static_cast<std::size_t>(grid->selectedRows().count());
    const QString counted = rows == 1 ? wording_.translate("studio", "1 row")
                                      : wording_.translate("studio", "%1 rows").arg(wording_.number(rows));
    if (marked == 0) return counted;
    return counted + QStringLiteral(", ") + wording_.translate("studio", "%1 marked").arg(wording_.number(marked));
}

QString EditorStatus::storedText() const {
    if (history_.editor().hasOpenEdit()) return wording_.translate("studio", "Row not stored yet");
    const std::size_t steps = history_.history()->position();
    if (steps == 0) return wording_.translate("studio", "All stored");
    return wording_.translate("studio", "All stored, changes: %1").arg(wording_.number(steps));
}

void EditorStatus::show() {
    follow();
    const std::string key = explorer_.selectedNode().key;
    const std::int64_t ofSubRecipes = branch::idOf(branch::subRecipes, key);
    const std::int64_t recipe = ofSubRecipes != 0 ? ofSubRecipes : branch::idOf(branch::recipe, key);
    const QModelIndex node =
        recipe == 0 ? QModelIndex() : explorer_.model().find(branch::keyOf(branch::recipe, recipe));
    const bool inRecipe = node.isValid();
    showName(recipe_, inRecipe ? qt::toQt(explorer_.model().caption(node)) : QString());
    rows_.setText(inRecipe ? rowsText() : QString());
    stored_.setText(history_.history() == nullptr ? QString() : storedText());
    for (qt::PlainLabel* label : {&recipe_, &rows_, &stored_}) label->setVisible(!label->text().isEmpty());
}

}  // namespace hx::studio
