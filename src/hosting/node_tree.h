// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "automation/key_index.h"
#include "automation/packed_texts.h"
#include "host/project_explorer.h"
#include "hosting/chunked_list.h"
#include "hosting/shared_texts.h"

namespace hx::hosting {

/// The nodes of an explorer, fit for some 200,000: adding costs about 100 ns, finding by key is constant, taking nodes
/// off the front or the back of a parent one by one is cheap. Nodes are numbered; a number is valid until its node is
/// removed. The texts that are given out are valid until a node is removed or gets another caption.
class NodeTree {
  public:
    using Id = std::uint32_t;
    static constexpr Id none = std::numeric_limits<Id>::max();
    static constexpr Id root = 0;  ///< the invisible parent of the top nodes

    NodeTree();
    Id add(const host::NewNode& node);  ///< errBadIndex when the parent is unknown, the key is empty or exists
    void remove(Id id);                 ///< with everything below it; the root keeps itself
    [[nodiscard]] Id find(std::string_view key) const noexcept;  ///< none when unknown; keys are case-sensitive

    /// The same for a node that is likely to be the one added last or one above it; an empty key is the root.
    [[nodiscard]] Id findNear(std::string_view key) const noexcept;

    [[nodiscard]] Id parent(Id id) const noexcept;  ///< none for the root
    [[nodiscard]] std::size_t childCount(Id id) const noexcept;
    [[nodiscard]] Id child(Id id, std::size_t row) const noexcept;
    [[nodiscard]] std::size_t row(Id id) const noexcept;  ///< place among its siblings; logarithmic
    [[nodiscard]] std::string_view key(Id id) const noexcept;
    [[nodiscard]] std::string_view caption(Id id) const noexcept;
    [[nodiscard]] const std::string& tag(Id id) const noexcept;
    [[nodiscard]] const std::string& image(Id id) const noexcept;
    [[nodiscard]] const std::array<bool, 3>& options(Id id) const noexcept;
    [[nodiscard]] std::int32_t number(Id id) const noexcept;
    void setCaption(Id id, std::string_view caption);
    [[nodiscard]] std::size_t size() const noexcept;  ///< nodes, the root not counted
    /// The keys below a node in tree order, down to `levels` levels; an empty key is the root, an unknown one has none.
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const;
    void clear();

  private:
    /// Children in order; those before `head` have been taken off.
    struct Children {
        std::vector<Id> ids;
        std::size_t head = 0;
        [[nodiscard]] std::size_t count() const noexcept { return ids.size() - head; }
    };
    struct Node {
        std::string_view key, caption;  ///< in packed_
        Id parent = none;
        std::uint32_t ordinal = 0;  ///< rises along the siblings
        Id onlyChild = none;        ///< most parents have one child: it needs no list
        std::uint32_t list = 0;     ///< of the children in lists_, once there were two; else 0
        std::uint32_t tag = 0, image = 0;
        std::int32_t number = 0;
        std::array<bool, 3> options{};
    };
    void takeSlot();
    [[nodiscard]] std::uint32_t takeList();
    void attach(Id id, Id parentId);
    void detach(Id id);
    void release(Id id);
    void dropped(std::size_t bytes);

    ChunkedList<Node> nodes_;  ///< by number
    std::vector<Id> free_;
    ChunkedList<Children> lists_;  ///< by number; 0 stays empty, for the nodes without a list
    std::vector<std::uint32_t> freeLists_;
    automation::PackedTexts packed_;  ///< keys and captions
    std::size_t dropped_ = 0;         ///< bytes of them that no node has any more
    SharedTexts texts_;               ///< tags and images
    automation::KeyIndex index_;
    Id last_ = root;  ///< the node added last, or the root
};

}  // namespace hx::hosting
