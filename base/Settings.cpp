#include "base/Settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "base/Rounding.h"
#include "base/TrimBlanks.h"

namespace skylob::settings {

namespace {

std::optional<double> parseNumber(std::string_view text) {
    const std::string_view digits = trimBlanks(text);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    if (!std::isfinite(value)) return std::nullopt;
    return value;
}

/// One of the choices 1 to 3 of a group of option buttons; the middle one is the default.
int readChoice(const SettingsStore& store, std::string_view key) {
    const double value = parseNumber(store.get(key, "2")).value_or(2);
    return value == 1 || value == 3 ? static_cast<int>(value) : 2;
}

}  // namespace

bool readFlag(const SettingsStore& store, std::string_view key, bool fallback) {
    const std::string stored = store.get(key, fallback ? "1" : "0");
    if (trimBlanks(stored) == "1") return true;
    if (trimBlanks(stored) == "0") return false;
    return fallback;
}

void saveFlag(SettingsStore& store, std::string_view key, bool value) {
    store.save(key, value ? "1" : "0");
}

int readGameSpeed(const SettingsStore& store) {
    const double stored = parseNumber(store.get("GameSpeed", "0")).value_or(0);
    const int speed = roundToNearest(std::clamp(stored, -1.0, 100.0));
    return speed == 0 ? 50 : std::clamp(speed, 1, 99);
}

int readScreenSize(const SettingsStore& store) {
    return readChoice(store, "ScreenSize");
}

int readRoundsChoice(const SettingsStore& store) {
    return readChoice(store, "NumRounds");
}

int roundsForChoice(int choice) {
    constexpr std::array kRounds{5, 10, 20};
    return kRounds.at(static_cast<std::size_t>(choice - 1));
}

bool readFadeStatus(const SettingsStore& store) {
    std::string stored = store.get("FadeStatus", "False");
    for (char& letter : stored)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return trimBlanks(stored) == "true" || parseNumber(stored).value_or(0) != 0;
}

}  // namespace skylob::settings
