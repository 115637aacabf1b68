#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace skylob {

/// What the user asked for when starting the program.
struct CommandLine {
    enum class Request { Play, Help, Version, Refused };

    Request request = Request::Play;
    std::string error;                   ///< Refused: one line that says why
    std::optional<std::uint64_t> seed;   ///< --seed: makes the run repeatable
    std::optional<std::string> dataDir;  ///< --data-dir: the working directory, in UTF-8
    std::optional<int> scale;            ///< --scale: in percent, as in base/Scale.h
    std::optional<std::string> record;   ///< --record: the file for sets, in UTF-8
    std::optional<std::string> replay;   ///< --replay: the recorded set to show
    bool plain = false;                  ///< --plain: no light over the battlefield at first
    bool reducedMotion = false;          ///< --reduced-motion: as on a desktop that asks for it
    bool userData = false;               ///< --user-data: the user's data folder instead
};

}  // namespace skylob
