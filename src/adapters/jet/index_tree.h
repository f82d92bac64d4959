// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "adapters/jet/index_page.h"
#include "adapters/jet/space.h"
#include "adapters/jet/table_definition.h"
#include "automation/sentence.h"

namespace hx::jet {

/// The entries of an index in a tree of pages. A page that leads to others has for each of them its last entry, but for
/// the last one, its tail, none: what is added behind all others changes no page but the last.
class IndexTree {
  public:
    IndexTree(Pages& pages, Space& space, std::uint32_t table, const Index& index)
        : pages_(&pages), space_(&space), table_(table), root_(index.root), own_(index.ownPages) {}

    /// Whether there is an entry with this key, other than that of the row.
    [[nodiscard]] bool contains(Bytes key, std::optional<Place> butOf = {});
    [[nodiscard]] bool has(Bytes key, Place place);
    /// True when no other row has the key.
    bool insert(Bytes key, Place place);
    /// False when there was no such entry.
    bool remove(Bytes key, Place place);

    /// The longest key that pages can hold.
    static constexpr std::size_t longestKey = 1700;

    /// Goes through the entries. Valid while the index does not change.
    class Cursor {
      public:
        Cursor(IndexTree& tree, Bytes from);
        [[nodiscard]] bool atEnd() const noexcept { return !leaf_; }
        void next();
        [[nodiscard]] Place place() const noexcept { return leaf_->place(entry_); }
        [[nodiscard]] const IndexPage& leaf() const noexcept { return *leaf_; }
        [[nodiscard]] std::uint32_t entry() const noexcept { return entry_; }
        /// Whether the key begins so; for keys of the first columns.
        [[nodiscard]] int compareStart(Bytes start) const noexcept;

      private:
        void skipEmpty();

        IndexTree* tree_;
        std::optional<IndexPage> leaf_;
        std::uint32_t entry_ = 0;
        std::uint32_t passed_ = 0;
    };

    /// Adds to `damages` what is wrong, and counts the entries.
    using Report = std::function<void(std::uint32_t page, const automation::Sentence& what)>;
    [[nodiscard]] std::uint64_t check(const Report& report);

  private:
    struct Step {
        std::uint32_t page;
        std::uint32_t slot;  // of the child that was taken; as many as there are entries: the tail
    };

    [[nodiscard]] IndexPage read(std::uint32_t page) { return {pages_->read(page), table_}; }
    [[nodiscard]] IndexPage write(std::uint32_t page) { return {pages_->write(page), table_}; }
    [[nodiscard]] IndexPage descend(Bytes keyAndPlace);
    [[nodiscard]] bool insertNear(Bytes entry, bool& isFirst);
    [[nodiscard]] bool hasNeighbour(const IndexPage& leaf, std::uint32_t at, Bytes key);
    void grow(Bytes keyAndPlace);
    void shrink(Bytes keyAndPlace);
    void replaceKey(const Step& step, Bytes keyAndPlace);
    void assign(std::size_t level, const std::vector<Buffer>& entries);
    void nestRoot();
    [[nodiscard]] PageRef newPage(bool isLeaf);
    void linkBefore(const PageRef& page, IndexPage& next);
    void separate(std::uint32_t lastOfLeft);
    void removeChild(std::size_t level);
    [[nodiscard]] Buffer lastKey(std::uint32_t page);
    void checkPage(std::uint32_t page, int depth, Buffer& last, const Report& report, std::uint64_t& entries);

    Pages* pages_;
    Space* space_;
    std::uint32_t table_, root_;
    Place own_;
    std::vector<Step> path_;  // of the last descent, without the leaf
    std::uint32_t leaf_ = 0;  // of the last descent
    bool addsBehindAll_ = false;
    // The leaf that took the last entry, while nothing has changed its place in the tree.
    std::uint32_t near_ = 0;
    std::uint64_t nearGeneration_ = 0;
};

}  // namespace hx::jet
