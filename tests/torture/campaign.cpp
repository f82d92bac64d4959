// SPDX-License-Identifier: MIT
#include "torture/campaign.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>

namespace hx::torture {

namespace {

void make(const Attempt& attempt, Figures& figures) {
    std::string problem;
    try {
        problem = attempt.make();
    } catch (const std::exception& error) {
        problem = error.what();
    }
    figures.add(attempt.kind, attempt.text, problem);
}

}  // namespace

void makeAll(std::vector<Attempt> attempts, const Extent& extent, Figures& figures) {
    std::erase_if(attempts, [&](const Attempt& attempt) {
        return (attempt.kind + " " + attempt.text).find(extent.only) == std::string::npos;
    });
    std::mt19937 chance(extent.seed);
    std::ranges::shuffle(attempts, chance);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < attempts.size() && !extent.isOver(); i = next++) make(attempts[i], figures);
    };
    std::vector<std::jthread> workers;
    for (unsigned i = 1; i < extent.jobs; ++i) workers.emplace_back(work);
    work();
}

}  // namespace hx::torture
