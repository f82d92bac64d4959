// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>

#include "torture/campaign.h"
#include "torture/experiment.h"

/// Every call that changes a file fails, is cut short, or is the last before the end, in every operation.
namespace hx::torture {

namespace {

const std::vector<Fault> faults = {{"full", 0, {}},  {"broken", 0, {}},  {"gone", 0, {}},     {"short", 0, {}},
                                   {"kill", 0, {}},  {"cut", 0, "none"}, {"cut", 0, "names"}, {"cut", 0, "1"},
                                   {"cut", 0, "27"}, {"cut", 0, "3"}};

constexpr long shortOfProgram = 4, shortOfStudio = 1;  // attempts of each fault

using Shared = std::shared_ptr<const Experiment>;

// All calls, and one more: nothing may happen when the fault comes too late. A few are spread evenly, each fault's by
// another offset.
std::vector<long> callsFor(const Experiment& experiment, const Extent& extent, std::size_t offset) {
    std::vector<long> calls;
    const long all = experiment.calls() + 1;
    const long count =
        !extent.isShort ? all : std::min(all, experiment.operation().usesStudio() ? shortOfStudio : shortOfProgram);
    for (long i = 0; i < count; ++i)
        calls.push_back(1 + (i * all / count + static_cast<long>(offset) * all / (count * 10)) % all);
    return calls;
}

void addAttempts(const Shared& experiment, const Extent& extent, std::vector<Attempt>& attempts) {
    for (std::size_t i = 0; i < faults.size(); ++i) {
        for (const long at : callsFor(*experiment, extent, i)) {
            Fault fault = faults[i];
            fault.at = at;
            attempts.push_back({"faults " + experiment->operation().name + " " + fault.mode, fault.text(),
                                [experiment, fault] { return experiment->attempt(fault); }});
        }
    }
}

}  // namespace

void tryFaults(const Extent& extent, Figures& figures) {
    std::vector<Attempt> attempts;
    for (const Operation& operation : operations()) {
        if (!extent.wants("faults " + operation.name)) continue;
        addAttempts(std::make_shared<Experiment>(operation), extent, attempts);
    }
    makeAll(std::move(attempts), extent, figures);
}

}  // namespace hx::torture
