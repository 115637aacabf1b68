#pragma once

#include <string_view>

#include "base/SettingsStore.h"

/// How stored preferences are read: each with its default, and nonsense in the store never
/// reaches the game.
namespace skylob::settings {

/// A flag, stored as "1" (on) or "0" (off); anything else yields `fallback`.
bool readFlag(const SettingsStore& store, std::string_view key, bool fallback);

/// Stores a flag as "1" or "0".
void saveFlag(SettingsStore& store, std::string_view key, bool value);

/// The game speed, 1 to 99. A text that is no number reads as 0, and 0 becomes 50; other values
/// are brought to the nearer end of the range.
int readGameSpeed(const SettingsStore& store);

/// The size of the battle screen: 1 small, 2 normal (the default), 3 large.
int readScreenSize(const SettingsStore& store);

/// The choice of rounds in a set: 1, 2 (the default) or 3.
int readRoundsChoice(const SettingsStore& store);

/// The rounds that such a choice means: 5, 10 or 20.
int roundsForChoice(int choice);

/// Whether screens are to fade: "True" in any case of letters, or a number other than 0.
bool readFadeStatus(const SettingsStore& store);

}  // namespace skylob::settings
