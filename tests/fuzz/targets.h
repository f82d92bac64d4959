// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "automation/error.h"

namespace hx::fuzz {

/// A reader of what comes from outside, tried with any bytes. It returns when they are refused in the way that its
/// callers know, and when all that holds for what it has read does; else the process ends.
struct Target {
    std::string_view name;
    void (*run)(std::string_view bytes);

    friend void PrintTo(const Target& target, std::ostream* stream) { *stream << target.name; }
};

/// All of them. Each has a folder of its name in corpus/.
[[nodiscard]] std::span<const Target> targets();
/// Null when there is none of this name.
[[nodiscard]] const Target* findTarget(std::string_view name);

void settingsFile(std::string_view bytes);
void settingsPath(std::string_view bytes);
void registryFile(std::string_view bytes);
void nodeKey(std::string_view bytes);
void criterion(std::string_view bytes);
void sql(std::string_view bytes);
void jetFile(std::string_view bytes);
void json(std::string_view bytes);
void csv(std::string_view bytes);
void plcopen(std::string_view bytes);
void helpFile(std::string_view bytes);
void helpPage(std::string_view bytes);

/// Ends the process when something does not hold.
void require(bool holds, const char* what);

/// The path of a file with these bytes: always the same one.
[[nodiscard]] std::string fileOf(std::string_view bytes);

/// Does something that may refuse its input by an error; false when it did.
template <class Action>
bool accepted(const Action& action) {
    try {
        action();
        return true;
    } catch (const automation::Error&) {
        return false;
    }
}

}  // namespace hx::fuzz
