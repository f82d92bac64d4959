// SPDX-License-Identifier: MIT

/// What libFuzzer calls. HX_FUZZ_TARGET in the environment says which target.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "fuzz/targets.h"

namespace {

const hx::fuzz::Target& chosen() {
    const char* name = std::getenv("HX_FUZZ_TARGET");
    const hx::fuzz::Target* target = name == nullptr ? nullptr : hx::fuzz::findTarget(name);
    if (target != nullptr) return *target;
    std::fprintf(stderr, "HX_FUZZ_TARGET must be one of:");
    for (const hx::fuzz::Target& each : hx::fuzz::targets()) std::fprintf(stderr, " %s", each.name.data());
    std::fprintf(stderr, "\n");
    std::exit(2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const hx::fuzz::Target& target = chosen();
    target.run({reinterpret_cast<const char*>(data), size});
    return 0;
}
