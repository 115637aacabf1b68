#include "battle/BattleSettings.h"

#include "base/Settings.h"

namespace skylob {

void restoreOptions(BattleState& state, basSkylob& shared, const SettingsStore& store) {
    shared.GameSpeed = settings::readGameSpeed(store);
    state.gameSpeedAtStart = shared.GameSpeed;
    state.SoundOn = settings::readFlag(store, "SoundSetting", true);
    state.ShowTrajectory = settings::readFlag(store, "TrajectorySetting", true);
    state.chkMeteors = settings::readFlag(store, "MeteorsSetting", true);
    state.chkLightning = settings::readFlag(store, "LightningSetting", true);
    state.chkWind = settings::readFlag(store, "WindSetting", false);
}

void saveOptions(const BattleState& state, SettingsStore& store) {
    settings::saveFlag(store, "SoundSetting", state.SoundOn);
    settings::saveFlag(store, "TrajectorySetting", state.ShowTrajectory);
    settings::saveFlag(store, "MeteorsSetting", state.chkMeteors);
    settings::saveFlag(store, "LightningSetting", state.chkLightning);
    settings::saveFlag(store, "WindSetting", state.chkWind);
}

}  // namespace skylob
