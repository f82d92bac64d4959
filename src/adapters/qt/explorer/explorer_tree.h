// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

#include "adapters/qt/popup_place.h"
#include "host/extensibility.h"

namespace hx::qt {

/// Hears what the user does to the nodes of a tree. The indices are valid.
class NodeListener {
  public:
    enum class Stage { down, move, up };
    virtual ~NodeListener() = default;
    virtual void nodeClicked(const QModelIndex& node) = 0;
    virtual void nodeDoubleClicked(const QModelIndex& node) = 0;
    virtual void nodeExpanded(const QModelIndex& node) = 0;
    /// The position is in pixels.
    virtual void nodeMouse(const QModelIndex& node, Stage stage, const host::NodeMouse& mouse) = 0;
    /// True when the tree shall do nothing of its own with the key.
    virtual bool nodeKey(const QModelIndex& node, Stage stage, std::int16_t code, std::int16_t shift) = 0;
    virtual void nodeTyped(const QModelIndex& node, std::int32_t character) = 0;
};

/// The tree of the project explorer: fit for 200,000 nodes. Whatever makes another node current clicks it, before any
/// key or button-up of it is reported; Enter is the double click, the menu key the right mouse button.
class ExplorerTree : public QTreeView {
  public:
    ExplorerTree();
    /// Both are lent; null ends the reports.
    void setListener(NodeListener* listener, PopUpPlace* popUps);
    /// Makes a node the current one and brings it into sight, as the user's click does.
    void choose(const QModelIndex& node);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void click(const QModelIndex& node);
    void followCurrent();
    void releaseRight(const QPersistentModelIndex& node);
    void reportMouse(const QModelIndex& node, const QMouseEvent& event, NodeListener::Stage stage);
    void rightClick(const QPersistentModelIndex& node);
    NodeListener* listener_ = nullptr;
    PopUpPlace* popUps_ = nullptr;
    QPersistentModelIndex clicked_;  ///< the one that was clicked last
    QPersistentModelIndex rightPressed_;
    bool clickedByPress_ = false;
};

}  // namespace hx::qt
