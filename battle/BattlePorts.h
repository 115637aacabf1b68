#pragma once

#include "base/Clock.h"
#include "base/MessageBoxes.h"
#include "base/Pacer.h"
#include "base/RandomInt.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"
#include "battle/BattleObserver.h"

namespace skylob {

/// What a battle needs of the world beside a screen. All of it must outlive the battle.
struct BattlePorts {
    RandomSource& random;
    const Clock& clock;
    Pacer& pacer;
    SoundPlayer& sounds;
    MessageBoxes& boxes;
    SettingsStore& settings;
    BattleObserver* observer = nullptr;  ///< who wants to be told of it, if anybody
};

}  // namespace skylob
