// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "ado/provider.h"

namespace hx::history {

/// Copies of a project as it was before its first change of a day, beside it: NAME.hxs.2026-11-22.
class DailyCopies {
  public:
    struct Limits {
        std::size_t copies = 10;                          ///< the oldest ones beyond these are deleted,
        std::uintmax_t bytes = std::uintmax_t{1} << 30U;  ///< also while all together are larger
    };
    /// The date in the user's place, "2026-11-22".
    using Today = std::function<std::string()>;

    /// The provider is lent.
    DailyCopies(ado::Provider& provider, std::string project, Today today = localDate);
    DailyCopies(ado::Provider& provider, std::string project, Today today, Limits limits);

    /// Whether this is the first change of the day.
    [[nodiscard]] bool isDue() const { return today_() != done_; }
    /// To be called before each change. Throws what keeps today's copy from being made, once a day.
    void beforeChange();

    /// The copies that there are, the oldest first.
    [[nodiscard]] std::vector<std::filesystem::path> copies() const;

    [[nodiscard]] static std::string localDate();

  private:
    void removeOld() const;

    ado::Provider& provider_;
    std::string project_;
    Today today_;
    Limits limits_;
    std::string done_;  // the day
};

}  // namespace hx::history
