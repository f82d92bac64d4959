// SPDX-License-Identifier: MIT
#include "studio/editor_refresh.h"

#include <QApplication>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>
#include <utility>

#include "automation/convert.h"
#include "automation/dispatch.h"
#include "forms/grid.h"
#include "studio/editor_names.h"
#include "studio/expanded_nodes.h"
#include "studio/recipe_branch.h"

namespace hx::studio {

namespace {

// The message that a window's procedure gets when the window becomes the active one.
constexpr std::uint32_t activateMessage = 6, active = 1;

automation::ObjectRef gridOf(forms::Form* window) {
    return window == nullptr ? nullptr : window->get(editor_name::grid).asObject();
}

}  // namespace

EditorRefresh::EditorRefresh(StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree)
    : host_(host), explorer_(explorer), tree_(tree) {
    explorer_.listed = [this] { remember(); };
}

forms::Form* EditorRefresh::editor() const { return host_.attendedScreen().find(editor_name::window); }

bool EditorRefresh::isThere(const std::string& key) const {
    return !key.empty() && key != qt::QtExplorer::projectKey && explorer_.model().find(key).isValid();
}

void EditorRefresh::finishEdit() {
    host_.screen().settle();
    if (const auto grid = gridOf(editor())) (void)grid->get("Update");
}

void EditorRefresh::show(const history::StepName& step) {
    forms::Form* const window = editor();
    if (window == nullptr || project_ == nullptr) return;
    const QPointer<QWidget> keyboard = QApplication::focusWidget();
    const std::string before = explorer_.selectedNode().key;
    if (step.recipes > 0) {
        if (auto addIn = std::dynamic_pointer_cast<automation::Dispatch>(project_->addIn()))
            (void)addIn->get("RefreshView");
        putBack();
    } else {
        activate(*window);
    }
    const std::string where = branch::keyOf(branch::recipe, step.recipe);
    // Who works in a list of the studio's own stays there, unless the step was made in the editor.
    const QModelIndex current = tree_.currentIndex();
    const bool isElsewhere = step.kind == history::StepName::Kind::named && current.isValid() &&
                             explorer_.isOwn(explorer_.model().key(current));
    const std::string& shown = step.recipe != 0 && isThere(where) && !isElsewhere ? where : before;
    if (shown != explorer_.selectedNode().key || step.recipes == 0) showNode(shown);
    if (keyboard) keyboard->setFocus(Qt::OtherFocusReason);
}

void EditorRefresh::showNode(const std::string& key) {
    if (!isThere(key)) return;
    explorer_.select(key);
    project_->addIn()->NodeClick(explorer_.eventOf(key));
}

void EditorRefresh::activate(forms::Form& window) {
    auto& windows = host_.windows();
    (void)windows.call(windows.procedure(window.handle()), window.handle(), activateMessage, active, 0);
}

ExplorerState EditorRefresh::state() const {
    ExplorerState place;
    if (project_ == nullptr) return place;
    place.expanded = expandedNodes(tree_, explorer_);
    place.scrolled = tree_.verticalScrollBar()->value();
    place.node = explorer_.selectedNode().key;
    if (const auto grid = gridOf(editor())) place.row = automation::toInt32(grid->get("Row"));
    return place;
}

// The branch is filled, and the editor opened, when it is opened for the first time.
void EditorRefresh::restore(const ExplorerState& state) {
    if (state.expanded.empty() && state.node.empty()) return;
    tree_.expand(explorer_.model().find(branch::root));
    show(state);
}

bool EditorRefresh::hasOpenEdit() const {
    const auto grid = std::dynamic_pointer_cast<forms::Grid>(gridOf(editor()));
    return grid && (grid->dataChanged() || grid->addNewMode() || grid->editorOpen());
}

// What is not put back before control returns to the event loop is put back then.
void EditorRefresh::remember() {
    if (place_ || macroRuns_ || project_ == nullptr || editor() == nullptr) return;
    place_ = state();
    QTimer::singleShot(0, this, [this] {
        try {
            putBack();
        } catch (const std::exception&) {
            // The branch is there, at another place.
        }
    });
}

void EditorRefresh::putBack() {
    if (!place_) return;
    show(*std::exchange(place_, std::nullopt));
}

void EditorRefresh::show(const ExplorerState& place) {
    if (project_ == nullptr || editor() == nullptr) return;
    expandNodes(place.expanded, tree_, explorer_);
    showNode(place.node);
    tree_.verticalScrollBar()->setValue(place.scrolled);
    const auto grid = gridOf(editor());
    if (!grid || place.row < 0 || !isThere(place.node)) return;
    const std::int32_t last = automation::toInt32(grid->get("RowCount")) - 1;
    if (last >= 0) grid->set("Row", automation::Variant(std::min(place.row, last)));
}

}  // namespace hx::studio
