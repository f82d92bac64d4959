// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "automation/error.h"

namespace hx::hosting {

/// Does something with a file. An error that does not name the file gets its name in front.
template <class Action>
auto inFile(const std::string& path, const Action& action) {
    try {
        return action();
    } catch (const automation::Error& error) {
        if (error.description().find(path) != std::string::npos) throw;
        throw automation::Error(error.number(), path + ": " + error.description());
    }
}

}  // namespace hx::hosting
