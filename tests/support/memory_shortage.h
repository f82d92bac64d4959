// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

namespace hx::support {

/// While it lives, the n-th block that this thread asks `new` for is refused, once. The program must not have a `new`
/// of its own.
class MemoryShortage {
  public:
    explicit MemoryShortage(long at);
    ~MemoryShortage();
    MemoryShortage(const MemoryShortage&) = delete;
    MemoryShortage& operator=(const MemoryShortage&) = delete;
    /// Whether a block was refused.
    [[nodiscard]] static bool came();
};

/// Does it with ever later blocks refused until none is any more; how often one was. What else than std::exception
/// comes out of it comes out of here.
template <class Action>
int refuseEachBlock(const Action& action) {
    for (int at = 1;; ++at) {
        try {
            const MemoryShortage shortage(at);
            action();
            if (!MemoryShortage::came()) return at - 1;
        } catch (const std::exception&) {
            // The message; there must be no other end.
        }
    }
}

}  // namespace hx::support
