#pragma once

#include "base/MessageBoxes.h"
#include "base/SettingsStore.h"
#include "base/basSkylob.h"
#include "battle/BattleState.h"

/// What a battle keeps between runs, and what it asks before it is left.
namespace skylob {

/// Reads the options and the game speed at the start of a set.
void restoreOptions(BattleState& state, basSkylob& shared, const SettingsStore& store);

/// Saves the five boxes, but not the game speed.
void saveOptions(const BattleState& state, SettingsStore& store);

/// Asks whether the player really wants to leave the set; not in its first and last round.
bool confirmsLeaving(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes);

/// Where the game speed is not the one that the set began with: asks whether to save it.
void offerToKeepGameSpeed(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes,
                          SettingsStore& store);

}  // namespace skylob
