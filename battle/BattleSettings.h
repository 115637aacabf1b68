#pragma once

#include "base/SettingsStore.h"
#include "base/basSkylob.h"
#include "battle/BattleState.h"

/// What a battle keeps between runs.
namespace skylob {

/// Reads the options and the game speed at the start of a set.
void restoreOptions(BattleState& state, basSkylob& shared, const SettingsStore& store);

/// Saves the five boxes, but not the game speed.
void saveOptions(const BattleState& state, SettingsStore& store);

}  // namespace skylob
