#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hx::cli {

/// Names that are looked up ignoring case. Made for a million of them: all texts stand in one block of memory.
class NameSet {
  public:
    NameSet();
    void add(std::string_view name);
    [[nodiscard]] bool contains(std::string_view name);

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;  // 0: free, else its number counted from 1
    };

    [[nodiscard]] std::size_t slotOf(std::string_view folded, std::uint32_t hash) const;
    void grow();
    /// Valid until the next call.
    [[nodiscard]] std::string_view fold(std::string_view name);

    std::string texts_;
    std::vector<std::size_t> ends_;  // of the texts; the first is 0
    std::vector<Slot> slots_;        // a power of two, at most half used
    std::string buffer_;
};

}  // namespace hx::cli
