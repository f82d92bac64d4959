// SPDX-License-Identifier: MIT
#include <memory>

#include "torture/campaign.h"
#include "torture/experiment.h"

/// Every operation is ended at any moment.
namespace hx::torture {

namespace {

constexpr int shortCount = 3, longCount = 2000;  // of each operation

}  // namespace

void tryKills(const Extent& extent, Figures& figures) {
    std::vector<Attempt> attempts;
    for (const Operation& operation : operations()) {
        if (!extent.wants("kills " + operation.name)) continue;
        if (extent.isShort && operation.usesStudio()) continue;
        std::mt19937 chance(extent.seed);  // an operation's own: the same whatever else is tried
        const auto experiment = std::make_shared<const Experiment>(operation);
        std::uniform_int_distribution<long> moment(0, experiment->time().count());
        for (int i = 0; i < (extent.isShort ? shortCount : longCount); ++i) {
            const std::chrono::microseconds time(moment(chance));
            attempts.push_back({"kills " + operation.name, "after " + std::to_string(time.count()) + " us",
                                [experiment, time] { return experiment->attemptKilledAfter(time); }});
        }
    }
    makeAll(std::move(attempts), extent, figures);
}

}  // namespace hx::torture
