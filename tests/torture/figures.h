// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <mutex>
#include <ostream>
#include <string>

namespace hx::torture {

/// How many attempts there were of each kind, and how many of them failed. Any number of threads may add.
class Figures {
  public:
    explicit Figures(std::ostream& out) : out_(out) {}

    /// An attempt; `problem` is empty when all was well, else it is printed at once, with what tells how to do it
    /// again.
    void add(const std::string& kind, const std::string& attempt, const std::string& problem);
    /// A line a kind, and the sums.
    void print();
    [[nodiscard]] bool failed() const;

  private:
    struct Count {
        long tried = 0;
        long failed = 0;
    };
    mutable std::mutex mutex_;
    std::ostream& out_;
    std::map<std::string, Count> counts_;
};

}  // namespace hx::torture
