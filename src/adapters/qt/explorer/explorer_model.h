// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QTimer>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

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

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return 1; }
    /// A node whose first option is set can be expanded before it has nodes below it.
    [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    [[nodiscard]] Id idOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(Id id) const;
    [[nodiscard]] Id require(std::string_view key);
    [[nodiscard]] bool isNew(Id id) const { return id < new_.size() && new_[id]; }
    [[nodiscard]] bool isGoing(Id id) const;
    void publishNew();
    void publishGoing();
    void removeRowsOf(Id parent, std::vector<std::size_t> rows);

    hosting::NodeTree tree_;
    std::map<std::string, QIcon, std::less<>> images_;
    QTimer timer_;
    std::vector<bool> new_;                  ///< by number: not published yet
    std::unordered_map<Id, int> published_;  ///< children that views know, where some are new
    Id growing_ = hosting::NodeTree::none;   ///< the one of these that got the last new child
    std::vector<Id> going_;                  ///< removed, but still in the tree
    std::vector<bool> goingMarks_;           ///< by number
};

}  // namespace hx::qt
