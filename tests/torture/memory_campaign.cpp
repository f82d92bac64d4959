// SPDX-License-Identifier: MIT
#include <memory>
#include <stdexcept>

#include "torture/campaign.h"
#include "torture/experiment.h"

/// A block of memory is refused, once, at any point of the imports, of the macro engine and of all else on the command
/// line: a message, and nothing half done.
namespace hx::torture {

namespace {

constexpr int shortCount = 12, longCount = 5000;  // of each operation

}  // namespace

void tryMemory(const Extent& extent, Figures& figures) {
    std::vector<Attempt> attempts;
    for (const Operation& operation : operations()) {
        if (!extent.wants("memory " + operation.name)) continue;
        if (operation.usesStudio()) continue;  // the toolkit itself does not survive it
        std::mt19937 chance(extent.seed);      // an operation's own: the same whatever else is tried
        const auto experiment = std::make_shared<const Experiment>(operation);
        const long blocks = experiment->countBlocks();
        if (blocks <= 0) throw std::runtime_error(operation.name + " asks for no memory");
        std::uniform_int_distribution<long> which(1, blocks);
        for (int i = 0; i < (extent.isShort ? shortCount : longCount); ++i) {
            const Fault fault{"memory", which(chance), {}};
            attempts.push_back(
                {"memory " + operation.name, fault.text(), [experiment, fault] { return experiment->attempt(fault); }});
        }
    }
    makeAll(std::move(attempts), extent, figures);
}

}  // namespace hx::torture
