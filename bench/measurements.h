// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "bench/projects.h"
#include "bench/report.h"

namespace hx::bench {

/// One measurement by the name under which it is asked for.
struct Measurement {
    std::string_view key;
    Row (*run)(const Project& project, int rounds);
};

/// How often a subject runs in one round: when a run takes long, and when it does not.
inline constexpr int fewRuns = 3;
inline constexpr int manyRuns = 200;

/// All of them, in the order in which they are printed.
[[nodiscard]] std::span<const Measurement> measurements();

}  // namespace hx::bench
