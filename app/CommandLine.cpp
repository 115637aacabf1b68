#include "app/CommandLine.h"

#include <charconv>

namespace skylob {

namespace {

CommandLine refused(std::string error) {
    CommandLine result;
    result.request = CommandLine::Request::Refused;
    result.error = std::move(error);
    return result;
}

std::optional<std::uint64_t> parseSeed(std::string_view text) {
    std::uint64_t seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return seed;
}

}  // namespace

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
    CommandLine result;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const bool last = i + 1 == arguments.size();
        if (argument == "--help") {
            result.request = CommandLine::Request::Help;
            return result;
        }
        if (argument == "--version") {
            result.request = CommandLine::Request::Version;
            return result;
        }
        if (argument == "--user-data") {
            result.userData = true;
        } else if (argument == "--plain") {
            result.plain = true;
        } else if (argument == "--seed") {
            result.seed = last ? std::nullopt : parseSeed(arguments[++i]);
            if (!result.seed) return refused("--seed needs a whole number from 0 up");
        } else if (argument == "--data-dir") {
            if (last || arguments[i + 1].empty()) return refused("--data-dir needs a folder");
            result.dataDir = arguments[++i];
        } else {
            return refused("unknown argument '" + std::string{argument} + "'; see --help");
        }
    }
    if (result.userData && result.dataDir)
        return refused("--data-dir and --user-data exclude each other");
    return result;
}

std::string_view commandLineHelp() {
    return "Usage: skylob [OPTION]...\n"
           "Skylob, an artillery game for one computer and one or two people.\n"
           "\n"
           "  --data-dir DIR  keep the player list in the folder DIR, made if it is missing\n"
           "  --user-data     keep it in your own data folder\n"
           "                  (otherwise: in the folder that the program is started in)\n"
           "  --plain         no light over the battlefield (\"Effects\" in the battle)\n"
           "  --seed N        repeatable chance: the same seed makes the same battlefields\n"
           "  --help          print this text\n"
           "  --version       print the version\n";
}

}  // namespace skylob
