// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "torture/figures.h"

namespace hx::torture {

/// How much is to be tried.
struct Extent {
    /// Everything, in an order by chance, until then; without it a few of each kind.
    std::chrono::steady_clock::time_point until{};
    bool isShort = true;
    std::uint32_t seed = 1;
    unsigned jobs = 1;
    std::string only;  ///< of all attempts those alone whose kind and text hold this

    /// Whether attempts of this kind, or some of them, are asked for.
    [[nodiscard]] bool wants(const std::string& kind) const {
        return only.empty() || kind.find(only) != std::string::npos || only.starts_with(kind);
    }
    [[nodiscard]] bool isOver() const { return !isShort && std::chrono::steady_clock::now() >= until; }
};

/// One attempt, which is independent of all others.
struct Attempt {
    std::string kind;
    std::string text;
    std::function<std::string()> make;  ///< the problem, empty without one
};

/// Makes the attempts, several at once, until the extent is over. What an attempt throws is its problem.
void makeAll(std::vector<Attempt> attempts, const Extent& extent, Figures& figures);

/// The campaigns.
void tryFaults(const Extent& extent, Figures& figures);
void tryKills(const Extent& extent, Figures& figures);
void tryMemory(const Extent& extent, Figures& figures);
void tryDamage(const Extent& extent, Figures& figures);
void tryPairs(const Extent& extent, Figures& figures);

}  // namespace hx::torture
