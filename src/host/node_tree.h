#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "host/project_explorer.h"

namespace hx::host {

/// The nodes of an explorer, fit for some 200,000: adding costs about 100 ns, finding by key is constant, taking nodes
/// off the front or the back of a parent one by one is cheap. Nodes are numbered; a number is valid until its node is
/// removed.
class NodeTree {
  public:
    using Id = std::uint32_t;
    static constexpr Id none = std::numeric_limits<Id>::max();
    static constexpr Id root = 0;  ///< the invisible parent of the top nodes

    NodeTree();
    Id add(const NewNode& node);  ///< errBadIndex when the parent is unknown or the key exists
    void remove(Id id);           ///< with everything below it
    [[nodiscard]] Id find(std::string_view key) const noexcept;  ///< none when unknown; keys are case-sensitive

    [[nodiscard]] Id parent(Id id) const noexcept;
    [[nodiscard]] std::size_t childCount(Id id) const noexcept;
    [[nodiscard]] Id child(Id id, std::size_t row) const noexcept;
    [[nodiscard]] std::size_t row(Id id) const noexcept;  ///< place among its siblings; logarithmic
    [[nodiscard]] const std::string& key(Id id) const noexcept;
    [[nodiscard]] const std::string& caption(Id id) const noexcept;
    [[nodiscard]] const std::string& tag(Id id) const noexcept;
    [[nodiscard]] const std::string& image(Id id) const noexcept;
    void setCaption(Id id, std::string_view caption);
    [[nodiscard]] std::size_t size() const noexcept;  ///< nodes, the root not counted
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const;
    void clear();

  private:
    // The implementer's: nodes in a vector with a free list, an open-addressing index from key to node, children as
    // vectors of numbers with a head offset, an ordinal a node for row().
};

}  // namespace hx::host
