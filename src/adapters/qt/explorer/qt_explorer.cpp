// SPDX-License-Identifier: MIT
#include "adapters/qt/explorer/qt_explorer.h"

#include <QScopedValueRollback>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "automation/convert.h"
#include "automation/error.h"

namespace hx::qt {

QtExplorer::QtExplorer(ExplorerTree& tree, forms::WindowHandle hostWindow, host::Clipboard& clipboard, QtScreen& screen)
    : tree_(tree), hostWindow_(hostWindow), clipboard_(clipboard), screen_(screen) {
    tree_.setModel(&model_);
    tree_.setListener(this, &screen.popUps());
}

QtExplorer::~QtExplorer() {
    tree_.setListener(nullptr, nullptr);
    tree_.setModel(nullptr);
}

void QtExplorer::openProject(const std::string& name, const QIcon& icon) {
    closeProject();
    project_ = name;
    const std::string key(projectKey);
    model_.setImage(key, icon);
    model_.add({.parent = {}, .caption = name, .key = projectKey, .tag = {}, .image = projectKey});
    const QScopedValueRollback byProgram(byProgram_, true);
    tree_.expand(model_.find(projectKey));
}

void QtExplorer::addOwnNode(const std::string& key, const std::string& caption, const QIcon& icon) {
    own_ = key;
    model_.setImage(key, icon);
    model_.add({.parent = projectKey, .caption = caption, .key = key, .tag = {}, .image = key});
}

void QtExplorer::closeProject() {
    addIn_ = nullptr;
    project_.clear();
    own_.clear();
    model_.clear();
}

void QtExplorer::takeClipboardImage(std::string_view key) {
    const QIcon icon = svgIcon(clipboard_.picture());
    constexpr automation::Sentence noPicture{"The clipboard holds no picture", "Die Zwischenablage enthält kein Bild"};
    if (icon.isNull()) throw automation::Error(automation::errFail, noPicture);
    model_.setImage(std::string(key), icon);
}

void QtExplorer::addNode(const host::NewNode& node) {
    host::NewNode placed = node;
    if (placed.parent.empty()) placed.parent = projectKey;
    requireRoomBelow(placed.parent);
    model_.add(placed);
}

// The tree goes from a node into those below it when it lays them out.
void QtExplorer::requireRoomBelow(std::string_view key) const {
    constexpr int deepest = 100;
    constexpr automation::Sentence tooDeep{"The explorer takes no more than 100 nodes one below the other",
                                           "Der Explorer nimmt höchstens 100 Knoten untereinander auf"};
    if (model_.depth(key) < deepest) return;
    throw automation::Error(automation::errFail, tooDeep);
}

std::vector<std::string> QtExplorer::childKeys(std::string_view key, std::int32_t levels) const {
    if (levels == 1 && listed) listed();
    std::vector<std::string> keys = model_.childKeys(key.empty() ? projectKey : key, levels);
    std::erase_if(keys, [this](const std::string& one) { return isOwn(one); });
    return keys;
}

void QtExplorer::setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) {
    if (property == host::node_property::caption) return model_.setCaption(key, automation::toText(value));
    const QModelIndex node = model_.find(key);
    if (!node.isValid()) automation::throwBadIndex("Nodes", automation::Variant(std::string(key)));
    if (property != host::node_property::expanded) automation::throwBadIndex("Node properties", property);
    const QScopedValueRollback byProgram(byProgram_, true);
    tree_.setExpanded(node, automation::toBoolean(value));
}

host::NodeEvent QtExplorer::selectedNode() const {
    model_.publish();
    const QModelIndex node = tree_.currentIndex();
    return isAddIns(node) ? eventOf(node) : host::NodeEvent();
}

bool QtExplorer::isAddIns(const QModelIndex& node) const {
    return addIn_ != nullptr && node.isValid() && node.parent().isValid() && !isOwn(model_.key(node));
}

host::NodeEvent QtExplorer::eventOf(const QModelIndex& node) const {
    return {project_, model_.key(node), model_.caption(node)};
}

QModelIndex QtExplorer::requireNode(std::string_view key) const {
    const QModelIndex node = model_.find(key);
    if (!isAddIns(node)) automation::throwBadIndex("Nodes", automation::Variant(std::string(key)));
    return node;
}

host::NodeEvent QtExplorer::eventOf(std::string_view key) const { return eventOf(requireNode(key)); }

void QtExplorer::select(std::string_view key) { tree_.setCurrentIndex(key.empty() ? QModelIndex() : requireNode(key)); }

void QtExplorer::showExpanded(std::string_view key) {
    const QModelIndex node = requireNode(key);
    const QScopedValueRollback byProgram(byProgram_, true);
    tree_.expand(node);
}

void QtExplorer::nodeClicked(const QModelIndex& node) {
    if (node.isValid() && isOwn(model_.key(node))) return ownChosen(false);
    if (!isAddIns(node)) return;
    const bool hadKeyboard = tree_.hasFocus();
    addIn_->NodeClick(eventOf(node));
    // A window that opens with the first click takes the keyboard, which goes on moving through the tree.
    if (hadKeyboard) activate();
}

void QtExplorer::nodeDoubleClicked(const QModelIndex& node) {
    if (node.isValid() && isOwn(model_.key(node))) return ownChosen(true);
    if (isAddIns(node)) addIn_->NodeDblClick(eventOf(node));
}

void QtExplorer::nodeExpanded(const QModelIndex& node) {
    if (!isAddIns(node) || byProgram_) return;
    const bool hadKeyboard = tree_.hasFocus();
    addIn_->NodeExpand(eventOf(node));
    model_.publish();
    if (hadKeyboard) activate();
}

void QtExplorer::nodeMouse(const QModelIndex& node, Stage stage, const host::NodeMouse& mouse) {
    if (!isAddIns(node)) return;
    const Units& units = screen_.units();
    const host::NodeMouse inTwips{mouse.button, mouse.shift, units.twips(mouse.x), units.twips(mouse.y)};
    switch (stage) {
        case Stage::down: addIn_->NodeMouseDown(eventOf(node), inTwips); break;
        case Stage::move: addIn_->NodeMouseMove(eventOf(node), inTwips); break;
        case Stage::up: addIn_->NodeMouseUp(eventOf(node), inTwips); break;
    }
}

bool QtExplorer::nodeKey(const QModelIndex& node, Stage stage, std::int16_t code, std::int16_t shift) {
    if (!isAddIns(node)) return false;
    if (stage == Stage::up) {
        addIn_->NodeKeyUp(eventOf(node), code, shift);
        return false;
    }
    addIn_->NodeKeyDown(eventOf(node), code, shift);
    // The tree would copy the caption.
    return code == forms::key::c && shift == forms::shift::ctrl;
}

void QtExplorer::nodeTyped(const QModelIndex& node, std::int32_t character) {
    if (isAddIns(node)) addIn_->NodeKeyPress(eventOf(node), character);
}

}  // namespace hx::qt
