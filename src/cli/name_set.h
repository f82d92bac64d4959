#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hx::cli {

/// Names that are looked up ignoring case, numbered from 0 in the order in which they are added. Made for a million of
/// them: all texts stand in one block of memory.
class NameSet {
  public:
    NameSet();
    /// Gives the name's number, also when it is there already.
    std::size_t add(std::string_view name);
    [[nodiscard]] bool contains(std::string_view name);
    /// Fetches the memory that looking up this name soon will need.
    void prefetch(std::string_view name);

  private:
    /// Where the text stands, with some bits of its hash, so that a look at the slot nearly always suffices. 0: free.
    using Slot = std::uint64_t;
    struct Entry {
        std::string_view text;
        std::size_t number;
    };

    [[nodiscard]] std::size_t slotOf(std::string_view folded, std::size_t hash) const;
    [[nodiscard]] Entry entryAt(Slot slot) const;
    void grow();
    /// Valid until the next call.
    [[nodiscard]] std::string_view fold(std::string_view name);

    std::string texts_;        // each behind its Head
    std::vector<Slot> slots_;  // a power of two, at most half used
    std::size_t count_ = 0;
    std::string buffer_;
};

}  // namespace hx::cli
