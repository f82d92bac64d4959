// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

namespace hx::torture {

/// A way in which a project is not as it should be.
struct Damage {
    std::string name;
    std::function<void(const std::string& project)> make;
};

/// Projects that somebody has made up: tables that are views, triggers, values of other kinds.
[[nodiscard]] std::vector<Damage> schemas();
/// What disks and programs do to files, by chance.
[[nodiscard]] Damage accident(std::mt19937& chance);

}  // namespace hx::torture
