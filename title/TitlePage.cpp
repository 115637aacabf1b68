#include "title/TitlePage.h"

#include <algorithm>

namespace skylob::title {

namespace {

constexpr std::string_view kNewUser = "NewUser", kNoShow = "NoShow";

}  // namespace

std::string versionLabel(std::string_view version) {
    std::string label = "Version w";
    while (true) {
        const std::string_view part = version.substr(0, version.find('.'));
        // Quirk "hidden zeros": a part that is 0 has no digits left.
        label += part.substr(std::min(part.find_first_not_of('0'), part.size()));
        if (part.size() == version.size()) return label;
        label += '.';
        version.remove_prefix(part.size() + 1);
    }
}

bool wantsWelcome(const SettingsStore& settings) {
    return settings.get(kNewUser, "") != kNoShow;
}

void endWelcomes(SettingsStore& settings) {
    settings.save(kNewUser, kNoShow);
}

std::string welcomeMessage(std::string_view overview) {
    std::string message =
        "Welcome! Are you a new user? If so, then let's take a moment for a quick overview."
        "\r\n\r\n";
    message += overview;
    return message;
}

void greet(const Clock& clock, SoundPlayer& sounds) {
    const int second = secondsOf(clock.now());
    // Quirk "greeting after a fade": only in the first twenty seconds of a minute.
    if (second < 10) {
        sounds.PlaySound("whatsup");
    } else if (second < 20) {
        sounds.PlaySound("daffy");
    }
}

}  // namespace skylob::title
