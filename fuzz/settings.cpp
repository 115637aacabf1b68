// Stored texts of any kind. Every setting reads as a value that the game can play with, plain
// numbers as what they say, and what is stored is read again.
#include "base/Settings.h"
#include "base/NullPorts.h"
#include "base/Scale.h"
#include "base/Volume.h"
#include "base/basSkylob.h"
#include "fuzz/Input.h"
#include "screen/WindowPlace.h"

using namespace skylob;
using fuzz::require;

static void checkSpeed(const std::string& text, int speed) {
    require(speed >= 1 && speed <= 99, "the game speed is 1 to 99");
    if (text.empty() || text.size() > 9 ||
        text.find_first_not_of("0123456789") != std::string::npos)
        return;
    const int said = std::stoi(text);
    require(speed == (said == 0 ? 50 : std::min(said, 99)), "a plain number is the speed it says");
}

static void checkFlag(MemorySettings& settings, bool value) {
    settings::saveFlag(settings, "Any", value);
    require(settings::readFlag(settings, "Any", !value) == value, "a stored flag is read again");
}

static void checkPlace(const std::string& text) {
    const auto place = placeOf(text);
    if (!place) return;
    require(place->area.width > 0 && place->area.height > 0, "a place has a size");
    require(placeOf(toText(*place)) == place, "a place is read as it was written");
    const DesktopArea room{-100, 50, 800, 600};
    const DesktopArea area = broughtInto(place->area, room);
    require(sharedPixels(area, room) == std::int64_t{1} * area.width * area.height,
            "a window comes up within its display");
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text{fuzz::Input{bytes, size}.rest()};
    MemorySettings settings;
    MemoryWindows windows;
    for (const char* key : {"GameSpeed", "ScreenSize", "NumRounds", "FadeStatus", "Any"})
        settings.save(key, text);
    for (const char* key : {"Scale", "Volume"}) windows.keep(key, text);

    checkSpeed(text, settings::readGameSpeed(settings));
    const int screen = settings::readScreenSize(settings);
    require(screen >= kSmallScreen && screen <= kLargeScreen, "there are three sizes");
    const int rounds = settings::roundsForChoice(settings::readRoundsChoice(settings));
    require(rounds == 5 || rounds == 10 || rounds == 20, "a set has 5, 10 or 20 rounds");
    settings::readFadeStatus(settings);
    checkFlag(settings, settings::readFlag(settings, "Any", true));
    const int scale = recallScale(windows), volume = recallVolume(windows);
    require(scale >= kNormalScale && scale <= kLargestScale, "the scale is 100 to 200");
    require(volume >= 0 && volume <= kFullVolume, "the volume is 0 to 100");
    checkPlace(text);
    return 0;
}
