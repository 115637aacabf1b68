#include "battle/BattleSettings.h"

#include <string>

#include "base/Settings.h"

namespace skylob {

namespace {

bool asks(MessageBoxes& boxes, std::string title, std::string question) {
    return boxes.show({std::move(title), std::move(question), BoxIcon::Question,
                       BoxButtons::YesNo}) == BoxAnswer::Yes;
}

}  // namespace

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

bool confirmsLeaving(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes) {
    // The first and the last round are left without asking.
    if (state.RoundNumber <= 1 || state.RoundNumber >= shared.NumRounds) return true;
    return asks(boxes, std::string{kProgramTitle}, "Are you sure you want to quit this set?");
}

void offerToKeepGameSpeed(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes,
                          SettingsStore& store) {
    if (shared.GameSpeed == state.gameSpeedAtStart) return;
    if (asks(boxes, "Game Speed Setting",
             "I notice you've changed the game speed setting.\r\n\r\n"
             "Would you like to keep this speed setting from now on?"))
        store.save("GameSpeed", std::to_string(shared.GameSpeed));
}

}  // namespace skylob
