#pragma once

#include <span>
#include <string>
#include <string_view>

#include "app/CommandLine.h"

namespace skylob {

/// Reads the arguments after the program's name, in any order. Whatever bytes they are made of,
/// they are refused when the toolkit would read others.
CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// What --help prints: the options, and the files that the game uses.
std::string commandLineHelp();

}  // namespace skylob
