#pragma once

#include "app/Clock.h"
#include "app/MessageBoxes.h"
#include "app/Pacer.h"
#include "app/RandomInt.h"
#include "app/SettingsStore.h"
#include "app/SoundPlayer.h"
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
