#pragma once

#include <string>

#include "base/MessageBoxes.h"
#include "base/SettingsStore.h"
#include "base/basSkylob.h"
#include "battle/BattleState.h"

/// What a battle says and asks in boxes.
namespace skylob {

/// Tells a side at the start of its turn that it has lost the round.
void tellOfNoMen(const std::string& playerName, MessageBoxes& boxes);

/// Asks whether the player really wants to leave the set; not in its first and last round.
bool confirmsLeaving(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes);

/// Where the game speed is not the one that the set began with: asks whether to save it.
void offerToKeepGameSpeed(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes,
                          SettingsStore& store);

}  // namespace skylob
