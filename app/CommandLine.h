#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace skylob {

/// What the user asked for when starting the program.
struct CommandLine {
    enum class Request { Play, Help, Version, Refused };

    Request request = Request::Play;
    std::string error;                   ///< Refused: one line that says why
    std::optional<std::uint64_t> seed;   ///< --seed: makes the run repeatable
    std::optional<std::string> dataDir;  ///< --data-dir: the working directory
    bool plain = false;                  ///< --plain: no light over the battlefield at first
    bool userData = false;               ///< --user-data: the user's data folder instead
};

/// Reads the arguments after the program's name.
CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// What --help prints.
std::string_view commandLineHelp();

}  // namespace skylob
