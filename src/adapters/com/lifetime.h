// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace hx::com {

/// What keeps a server in memory: objects that others hold, and locks. References to others' objects are counted too,
/// for whoever looks for leaks.
class Lifetime {
  public:
    /// One of what is counted, as long as it lives.
    class Counted {
      public:
        explicit Counted(std::atomic<long>& count) noexcept : count_(count) { ++count_; }
        ~Counted() { --count_; }
        Counted(const Counted&) = delete;
        Counted& operator=(const Counted&) = delete;

      private:
        std::atomic<long>& count_;
    };

    [[nodiscard]] bool isOver() const noexcept { return objects == 0 && locks == 0; }

    std::atomic<long> objects = 0;         ///< ours that others hold
    std::atomic<long> foreignObjects = 0;  ///< others' that we hold
    std::atomic<long> locks = 0;
};

}  // namespace hx::com
