// SPDX-License-Identifier: MIT
#include "fuzz/targets.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "support/temporary_folder.h"

namespace hx::fuzz {

std::span<const Target> targets() {
    static constexpr auto all = std::to_array<Target>({
        {"settings-file", settingsFile},
        {"settings-path", settingsPath},
        {"registry-file", registryFile},
        {"node-key", nodeKey},
        {"criterion", criterion},
        {"sql", sql},
        {"jet-file", jetFile},
        {"json", json},
        {"csv", csv},
        {"plcopen", plcopen},
        {"help-file", helpFile},
        {"help-page", helpPage},
    });
    return all;
}

const Target* findTarget(std::string_view name) {
    const auto found = std::ranges::find(targets(), name, &Target::name);
    return found == targets().end() ? nullptr : &*found;
}

void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "This does not hold: %s\n", what);
    std::abort();
}

std::string fileOf(std::string_view bytes) {
    static const support::TemporaryFolder folder;
    std::string path = folder.file("input");
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    return path;
}

}  // namespace hx::fuzz
