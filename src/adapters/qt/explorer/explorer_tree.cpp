// SPDX-License-Identifier: MIT
#include "adapters/qt/explorer/explorer_tree.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "adapters/qt/keys.h"

namespace hx::qt {

namespace {

constexpr int imageSize = 18;

bool isEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

}  // namespace

ExplorerTree::ExplorerTree() {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIconSize(QSize(imageSize, imageSize));
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setSelectionMode(ExtendedSelection);
    setAnimated(false);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& node) {
        if (!clickedByPress_ || clicked_ != node) click(node);
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& node) {
        if (listener_ != nullptr) listener_->nodeDoubleClicked(node);
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& node) {
        if (listener_ != nullptr) listener_->nodeExpanded(node);
    });
}

void ExplorerTree::setListener(NodeListener* listener, PopUpPlace* popUps) {
    listener_ = listener;
    popUps_ = popUps;
}

void ExplorerTree::choose(const QModelIndex& node) {
    setCurrentIndex(node);
    scrollTo(node);
    followCurrent();
}

void ExplorerTree::click(const QModelIndex& node) {
    clicked_ = node;
    if (listener_ != nullptr) listener_->nodeClicked(node);
}

void ExplorerTree::followCurrent() {
    if (currentIndex().isValid() && clicked_ != currentIndex()) click(currentIndex());
}

void ExplorerTree::reportMouse(const QModelIndex& node, const QMouseEvent& event, NodeListener::Stage stage) {
    if (listener_ == nullptr || !node.isValid()) return;
    const bool move = stage == NodeListener::Stage::move;
    listener_->nodeMouse(node, stage,
                         {move ? buttonNumber(event.buttons()) : buttonNumber(event.button()),
                          shiftState(event.modifiers()), event.position().x(), event.position().y()});
}

void ExplorerTree::mousePressEvent(QMouseEvent* event) {
    QTreeView::mousePressEvent(event);
    const QModelIndex node = indexAt(event->position().toPoint());
    rightPressed_ = event->button() == Qt::RightButton ? node : QModelIndex();
    reportMouse(node, *event, NodeListener::Stage::down);
    clickedByPress_ = clicked_ != currentIndex();
    followCurrent();
}

void ExplorerTree::mouseMoveEvent(QMouseEvent* event) {
    QTreeView::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton) followCurrent();
    reportMouse(indexAt(event->position().toPoint()), *event, NodeListener::Stage::move);
}

void ExplorerTree::mouseReleaseEvent(QMouseEvent* event) {
    const QPersistentModelIndex node = indexAt(event->position().toPoint());
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && node.isValid()) releaseRight(node);
    followCurrent();
    reportMouse(node, *event, NodeListener::Stage::up);
}

// The menu is for the node under the mouse: it becomes the current one, also after a press on another, and what shows
// its content follows first.
void ExplorerTree::releaseRight(const QPersistentModelIndex& node) {
    setCurrentIndex(node);
    const bool again = node == rightPressed_ && !clickedByPress_;
    rightPressed_ = QModelIndex();
    if (again) click(node);
}

// What the field of a caption does not take is meant for nobody else.
void ExplorerTree::keyPressEvent(QKeyEvent* event) {
    if (state() == EditingState) return;
    followCurrent();
    const QPersistentModelIndex before = currentIndex();
    if (listener_ != nullptr && before.isValid()) {
        const auto code = virtualKey(*event);
        if (code != 0 && listener_->nodeKey(before, NodeListener::Stage::down, code, shiftState(event->modifiers()))) {
            return;
        }
        if (const auto character = typedCharacter(*event); character != 0 && before.isValid()) {
            listener_->nodeTyped(before, character);
        }
    }
    if (isEnter(*event) && listener_ != nullptr && before.isValid()) return listener_->nodeDoubleClicked(before);
    QTreeView::keyPressEvent(event);
    followCurrent();
}

void ExplorerTree::keyReleaseEvent(QKeyEvent* event) {
    if (state() == EditingState) return;
    QTreeView::keyReleaseEvent(event);
    followCurrent();
    const auto code = virtualKey(*event);
    if (listener_ == nullptr || code == 0 || event->isAutoRepeat() || !currentIndex().isValid()) return;
    listener_->nodeKey(currentIndex(), NodeListener::Stage::up, code, shiftState(event->modifiers()));
}

void ExplorerTree::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()) rightClick(currentIndex());
    event->accept();
}

void ExplorerTree::rightClick(const QPersistentModelIndex& node) {
    if (listener_ == nullptr) return;
    const QPoint point = visualRect(node).bottomLeft();
    const auto here = popUps_->atKeyboard(viewport()->mapToGlobal(point));
    const host::NodeMouse mouse{forms::button::right, 0, static_cast<double>(point.x()),
                                static_cast<double>(point.y())};
    listener_->nodeMouse(node, NodeListener::Stage::down, mouse);
    if (node.isValid()) click(node);
    if (node.isValid()) listener_->nodeMouse(node, NodeListener::Stage::up, mouse);
}

}  // namespace hx::qt
