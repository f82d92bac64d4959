// SPDX-License-Identifier: MIT
#include <iostream>
#include <unistd.h>

#include "cli/command_line.h"

int main(int argc, char** argv) {
    const hx::cli::Output output{std::cout, std::cerr, isatty(STDERR_FILENO) != 0};
    return hx::cli::run(argc, argv, output);
}
