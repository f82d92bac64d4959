// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "automation/word_filter.h"
#include "hosting/node_tree.h"

namespace hx::qt {

/// Which of the children of one node are shown, and in which order.
class Arrangement {
  public:
    using Id = hosting::NodeTree::Id;
    /// The nodes are lent.
    explicit Arrangement(const hosting::NodeTree& tree) : tree_(tree) {}

    /// Of the node with this key, the children whose caption the filter holds for, ordered by their names or as they
    /// came. It concerns the node from the next arrange() on.
    void want(std::string key, automation::WordFilter filter, bool byName);
    [[nodiscard]] const std::string& key() const noexcept { return key_; }
    /// Of so many of the node's children, which are the first ones.
    void arrange(Id parent, std::size_t children);
    /// No node is concerned any more.
    void end();
    /// The names or the children are new: they are ordered afresh by the next arrange().
    void changed() noexcept { inOrder_.clear(); }

    [[nodiscard]] bool isOf(Id parent) const noexcept {
        return parent_ != hosting::NodeTree::none && parent == parent_;
    }
    [[nodiscard]] int count() const noexcept { return static_cast<int>(shown_.size()); }
    [[nodiscard]] Id at(std::size_t row) const { return shown_[row]; }
    /// Nothing when it is hidden.
    [[nodiscard]] std::optional<int> rowOf(Id id) const noexcept;
    /// Whether the node is a child that is hidden.
    [[nodiscard]] bool hides(Id id) const noexcept { return isOf(tree_.parent(id)) && !rowOf(id); }
    /// Shows a child as the last one.
    void append(Id id);
    /// Takes these rows out and gives what stood there.
    [[nodiscard]] std::vector<Id> take(std::size_t first, std::size_t count);

  private:
    void order(std::size_t children);
    void number(std::size_t from);

    const hosting::NodeTree& tree_;
    std::string key_;
    automation::WordFilter filter_;
    bool byName_ = false;
    Id parent_ = hosting::NodeTree::none;
    std::vector<Id> inOrder_;          // all children, when they are ordered by their names
    std::vector<Id> shown_;            // by row
    std::vector<std::uint32_t> rows_;  // by number, one more than the row; 0: hidden
};

}  // namespace hx::qt
