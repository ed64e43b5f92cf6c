// SPDX-License-Identifier: MIT
#include "cli/commands.h"

#include <iostream>

#include <unistd.h>

int main(int argc, char** argv) {
    const twk::cli::Console console{std::cout, std::cerr, isatty(STDOUT_FILENO) == 1};
    return twk::cli::run_command_line({argv + 1, argv + argc}, console);
}
