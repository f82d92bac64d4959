// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QTimer>
#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "adapters/qt/explorer/arrangement.h"
#include "hosting/node_tree.h"

namespace hx::qt {

/// The explorer's nodes for Qt's tree view. Nodes that come or go one after the other are published together, as
/// ranges: when control returns to the event loop, or before the next question that would tell the difference.
class ExplorerModel : public QAbstractItemModel {
  public:
    using Id = hosting::NodeTree::Id;
    ExplorerModel();

    void add(const host::NewNode& node);                              ///< errBadIndex as NodeTree::add
    void remove(std::string_view key);                                ///< errBadIndex when unknown
    void setCaption(std::string_view key, std::string_view caption);  ///< errBadIndex when unknown
    void clear();
    /// Shows, of the children of the node with this key, those whose caption the filter holds for, ordered by their
    /// names or as they came; what comes later stands at the end, unless it comes to a node that had no child. A node
    /// that is hidden is shown when it is asked for by find().
    void arrange(const std::string& key, const automation::WordFilter& filter, bool byName);
    /// How many children the node has, hidden ones too; 0 when unknown.
    [[nodiscard]] std::size_t childCount(std::string_view key);
    /// Publishes what has come and gone.
    void publish();

    /// How many nodes lead to the one of a key, itself the last, published or not; 0 when unknown.
    [[nodiscard]] int depth(std::string_view key) const;
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels);
    /// The published node of a key; invalid when unknown.
    [[nodiscard]] QModelIndex find(std::string_view key);
    [[nodiscard]] std::string key(const QModelIndex& index) const { return std::string(tree_.key(idOf(index))); }
    [[nodiscard]] std::string caption(const QModelIndex& index) const {
        return std::string(tree_.caption(idOf(index)));
    }
    /// All nodes as they are now.
    [[nodiscard]] const hosting::NodeTree& nodes();
    void setImage(const std::string& key, const QIcon& icon);
    /// Which nodes the user can give another caption, and what is done about it: the caption stays as it is. Called
    /// when the view has done with its field.
    using CanRename = std::function<bool(std::string_view key)>;
    using Rename = std::function<void(const std::string& key, const std::string& caption)>;
    void setRenaming(CanRename canRename, Rename rename);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return 1; }
    /// A node whose first option is set can be expanded before it has nodes below it.
    [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  private:
    [[nodiscard]] Id idOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(Id id) const;
    [[nodiscard]] Id require(std::string_view key);
    [[nodiscard]] bool isNew(Id id) const { return id < new_.size() && new_[id]; }
    [[nodiscard]] bool isGoing(Id id) const;
    [[nodiscard]] bool isHidden(Id id) const;
    void reveal(Id id);
    void publishNew();
    void publishNewOf(Id parent, int known);
    void publishGoing();
    void removeRowsOf(Id parent, std::vector<std::size_t> rows);

    hosting::NodeTree tree_;
    Arrangement arrangement_{tree_};
    std::map<std::string, QIcon, std::less<>> images_;
    CanRename canRename_;
    Rename rename_;
    QTimer timer_;
    std::vector<bool> new_;                  ///< by number: not published yet
    std::unordered_map<Id, int> published_;  ///< children that views know, where some are new
    Id growing_ = hosting::NodeTree::none;   ///< the one of these that got the last new child
    std::vector<Id> going_;                  ///< removed, but still in the tree
    std::vector<bool> goingMarks_;           ///< by number
};

}  // namespace hx::qt
