// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "torture/process.h"

namespace hx::torture {

/// Something that a user does with a program, in a folder.
struct Operation {
    std::string name;
    /// Programs with their arguments that make the folder as it is before, in their order. In all commands "~" is the
    /// folder.
    std::vector<Process::Command> before;
    /// What is tried. With steps its last argument is how many of them are to be done.
    Process::Command command;
    /// How often it changes the project; the folder may hold what any number of the steps leaves.
    int steps = 1;
    /// Whether the number of steps is the command's last argument, and each is printed when it is done.
    bool counted = false;
    /// What the last step may leave when it has told that it failed, as a change of what was there before it.
    std::string partly = {};
    /// What the user does next: it writes the same files, and clears away what was left lying about.
    std::vector<Process::Command> next;
    /// Whether the command, done once more, fails because of what it has done before.
    bool once = false;
    Environment environment = {};

    [[nodiscard]] Process::Command commandOf(int count) const;
    [[nodiscard]] bool usesStudio() const;
};

/// All operations: of the command line, of macros, of the studio.
[[nodiscard]] const std::vector<Operation>& operations();

/// A command that makes a project makes one in the Jet format; others stay as they are.
[[nodiscard]] Process::Command onJet(Process::Command command);

/// The text with another folder in place of the one that it names.
[[nodiscard]] std::string inFolder(std::string text, std::string_view from, const std::string& to);
/// The command with the folder in place of "~".
[[nodiscard]] Process::Command inFolder(Process::Command command, const std::string& folder);

}  // namespace hx::torture
