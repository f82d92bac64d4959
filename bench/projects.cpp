// SPDX-License-Identifier: MIT
#include "bench/projects.h"

#include <filesystem>
#include <iostream>
#include <unistd.h>

#include "cli/generate.h"

namespace hx::bench {

Project makeProject(const std::string& folder, std::int64_t recipes, std::int64_t big) {
    constexpr std::int64_t membersEach = 9;
    const Project project{folder + "/" + std::to_string(recipes) + "-" + std::to_string(big) + ".hxs", recipes, big};
    if (std::filesystem::exists(project.path)) return project;
    const cli::Output output{std::cout, std::cerr, isatty(STDERR_FILENO) != 0};
    cli::generate({recipes, recipes * membersEach, big}, project.path, output);
    return project;
}

}  // namespace hx::bench
