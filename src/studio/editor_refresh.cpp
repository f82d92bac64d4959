// SPDX-License-Identifier: MIT
#include "studio/editor_refresh.h"

#include <QApplication>
#include <QPointer>
#include <QScrollBar>

#include "automation/dispatch.h"

namespace hx::studio {

namespace {

constexpr std::string_view editorClass = "frmtabgrid", gridName = "tdbRM";

// What the key of a recipe's node begins with; its ID follows.
constexpr std::string_view recipeNode = "RCPR";

// The message that a window's procedure gets when the window becomes the active one.
constexpr std::uint32_t activateMessage = 6, active = 1;

void collectExpanded(const qt::ExplorerTree& tree, qt::ExplorerModel& model, const QModelIndex& parent,
                     std::vector<std::string>& keys) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex node = model.index(row, 0, parent);
        if (!tree.isExpanded(node)) continue;
        keys.push_back(model.key(node));
        collectExpanded(tree, model, node, keys);
    }
}

}  // namespace

forms::Form* EditorRefresh::editor() const { return host_.attendedScreen().find(editorClass); }

void EditorRefresh::finishEdit() {
    host_.screen().settle();
    forms::Form* const window = editor();
    if (window != nullptr) (void)window->get(gridName).asObject()->get("Update");
}

void EditorRefresh::show(const Project& project, const history::StepName& step) {
    forms::Form* const window = editor();
    if (window == nullptr) return;
    const QPointer<QWidget> keyboard = QApplication::focusWidget();
    const std::string before = explorer_.selectedNode().key;
    if (step.recipes > 0) reopen(project);
    else activate(*window);
    const std::string where = std::string(recipeNode) + std::to_string(step.recipe);
    const bool isThere = step.recipe != 0 && explorer_.model().find(where).isValid();
    const std::string& shown = isThere ? where : before;
    if (explorer_.model().find(shown).isValid() && shown != qt::QtExplorer::projectKey) {
        explorer_.select(shown);
        project.addIn()->NodeClick(explorer_.eventOf(shown));
    }
    if (keyboard) keyboard->setFocus(Qt::OtherFocusReason);
}

void EditorRefresh::activate(forms::Form& window) {
    auto& windows = host_.windows();
    (void)windows.call(windows.procedure(window.handle()), window.handle(), activateMessage, active, 0);
}

void EditorRefresh::reopen(const Project& project) {
    std::vector<std::string> expanded;
    qt::ExplorerModel& model = explorer_.model();
    collectExpanded(tree_, model, model.find(qt::QtExplorer::projectKey), expanded);
    const int scrolled = tree_.verticalScrollBar()->value();
    if (auto addIn = std::dynamic_pointer_cast<automation::Dispatch>(project.addIn())) (void)addIn->get("RefreshView");
    for (const std::string& key : expanded) {
        if (model.find(key).isValid()) explorer_.showExpanded(key);
    }
    tree_.verticalScrollBar()->setValue(scrolled);
}

}  // namespace hx::studio
