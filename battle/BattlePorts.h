#pragma once

#include "base/Clock.h"
#include "base/MessageBoxes.h"
#include "base/Pacer.h"
#include "base/RandomInt.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"
#include "battle/BattleView.h"

namespace skylob {

/// What a battle needs of the world. All of it must outlive the battle.
struct BattlePorts {
    RandomSource& random;
    const Clock& clock;
    Pacer& pacer;
    SoundPlayer& sounds;
    MessageBoxes& boxes;
    SettingsStore& settings;
    BattleView& view;
};

}  // namespace skylob
