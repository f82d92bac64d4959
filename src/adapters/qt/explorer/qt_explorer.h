// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <functional>
#include <string>

#include "adapters/qt/explorer/explorer_model.h"
#include "adapters/qt/explorer/explorer_tree.h"
#include "adapters/qt/screen/qt_screen.h"
#include "host/extensibility.h"
#include "host/project_explorer.h"

namespace hx::qt {

/// The project explorer: the studio's node for the open project, and below it the nodes of the add-in, which hears
/// what the user does to them.
class QtExplorer : public host::ProjectExplorer, private NodeListener {
  public:
    /// Key of the project's own node; the top nodes of the add-in lie below it.
    static constexpr std::string_view projectKey = "HXPROJECT";

    /// All are lent.
    QtExplorer(ExplorerTree& tree, forms::WindowHandle hostWindow, host::Clipboard& clipboard, QtScreen& screen);
    ~QtExplorer() override;

    void openProject(const std::string& name, const QIcon& icon);
    /// Puts a node of the studio's own below the project, of which the add-in neither knows nor hears; one at most. Its
    /// picture is that of its key.
    void addOwnNode(const std::string& key, const std::string& caption, const QIcon& icon);
    [[nodiscard]] bool isOwn(std::string_view key) const noexcept { return !own_.empty() && key == own_; }
    /// The user has chosen that node; `into` by a double click or Enter.
    std::function<void(bool into)> ownChosen = [](bool) {};
    /// Removes all nodes and forgets the add-in.
    void closeProject();
    /// Who hears of the nodes below the project; lent until the next call. Null: nobody.
    void setAddIn(host::CHX4Extensibility* addIn) noexcept { addIn_ = addIn; }

    [[nodiscard]] forms::WindowHandle hostWindow() const override { return hostWindow_; }
    void takeClipboardImage(std::string_view key) override;
    void addNode(const host::NewNode& node) override;
    void removeNode(std::string_view key) override { model_.remove(key); }
    /// Tells `listed` when it is the nodes directly below one.
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const override;
    void setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) override;
    [[nodiscard]] host::NodeEvent selectedNode() const override;
    void activate() override { tree_.setFocus(Qt::OtherFocusReason); }

    /// What an event of one of the add-in's nodes carries; errBadIndex when unknown.
    [[nodiscard]] host::NodeEvent eventOf(std::string_view key) const;
    /// As the user's choice; an empty key selects nothing. errBadIndex when unknown.
    void select(std::string_view key);
    /// Shows the nodes below a node without an event; errBadIndex when unknown.
    void showExpanded(std::string_view key);
    [[nodiscard]] ExplorerModel& model() noexcept { return model_; }

    /// The add-in asks which nodes there are before it puts others in their place.
    std::function<void()> listed;

  private:
    void nodeClicked(const QModelIndex& node) override;
    void nodeDoubleClicked(const QModelIndex& node) override;
    void nodeExpanded(const QModelIndex& node) override;
    void nodeMouse(const QModelIndex& node, Stage stage, const host::NodeMouse& mouse) override;
    bool nodeKey(const QModelIndex& node, Stage stage, std::int16_t code, std::int16_t shift) override;
    void nodeTyped(const QModelIndex& node, std::int32_t character) override;
    [[nodiscard]] bool isAddIns(const QModelIndex& node) const;
    [[nodiscard]] host::NodeEvent eventOf(const QModelIndex& node) const;
    [[nodiscard]] QModelIndex requireNode(std::string_view key) const;
    void requireRoomBelow(std::string_view key) const;

    ExplorerTree& tree_;
    mutable ExplorerModel model_;  // a question publishes what waits
    forms::WindowHandle hostWindow_;
    host::Clipboard& clipboard_;
    QtScreen& screen_;
    host::CHX4Extensibility* addIn_ = nullptr;
    std::string project_, own_;
    bool byProgram_ = false;
};

}  // namespace hx::qt
