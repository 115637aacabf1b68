#include "battle/BattleControls.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "base/Settings.h"

namespace skylob {

namespace {

/// Puts the value, brought into the range, on the bar; false when that changes nothing.
bool move(ScrollBar& bar, int value) {
    const int previous = bar.value;
    bar.value = std::clamp(value, bar.minimum, bar.maximum);
    return bar.value != previous;
}

std::string windCaption(int wind) {
    const std::string strength = std::to_string(std::abs(wind));
    return "Wind  " + (wind < 0 ? "<--" + strength : strength + "-->");
}

}  // namespace

BattleControls::BattleControls(basSkylob& shared, BattleState& state, const BattlePorts& ports)
    : m_shared{shared}, m_state{state}, m_ports{ports} {
}

void BattleControls::restoreOptions() {
    const SettingsStore& store = m_ports.settings;
    m_shared.GameSpeed = settings::readGameSpeed(store);
    m_gameSpeedAtStart = m_shared.GameSpeed;
    m_panel.chkSound = settings::readFlag(store, "SoundSetting", true);
    m_panel.chkTrajectory = settings::readFlag(store, "TrajectorySetting", true);
    m_panel.chkMeteors = settings::readFlag(store, "MeteorsSetting", true);
    m_panel.chkLightning = settings::readFlag(store, "LightningSetting", true);
    m_panel.chkWind = settings::readFlag(store, "WindSetting", false);
    m_state.SoundOn = m_panel.chkSound;
    m_state.ShowTrajectory = m_panel.chkTrajectory;
}

void BattleControls::setSpeed(int side, int value) {
    if (move(m_panel.side[side].scrollSpeed, value)) scrollSpeed_Change(side);
}

void BattleControls::setAngle(int side, int value) {
    if (move(m_panel.side[side].scrollAngle, value)) scrollAngle_Change(side);
}

void BattleControls::setGameSpeed(int value) {
    if (move(m_panel.scrollGameSpeed, value)) scrollGameSpeed_Change();
}

void BattleControls::scrollSpeed_Change(int side) {
    markActivity();
    m_panel.side[side].labelSpeed = "Speed: " + std::to_string(speed(side));
    show();
    click();
}

void BattleControls::scrollAngle_Change(int side) {
    markActivity();
    m_panel.side[side].labelAngle = "Angle:   " + std::to_string(angle(side));
    show();
    click();
}

void BattleControls::scrollGameSpeed_Change() {
    markActivity();
    m_shared.GameSpeed = m_panel.scrollGameSpeed.value;
    m_panel.labelGameSpeed = "Game Speed: " + std::to_string(m_shared.GameSpeed);
    show();
    click();
}

void BattleControls::chkSound_Click(bool ticked) {
    markActivity();
    m_panel.chkSound = ticked;
    m_state.SoundOn = ticked;
    show();
}

void BattleControls::chkTrajectory_Click(bool ticked) {
    markActivity();
    m_panel.chkTrajectory = ticked;
    m_state.ShowTrajectory = ticked;
    show();
}

void BattleControls::chkMeteors_Click(bool ticked) {
    m_effect.give(AmbientEffect::Command::BoxClick, [this, ticked] {
        markActivity();
        m_panel.chkMeteors = ticked;
        // The meteors follow the lightning box, as it stands when this one is clicked.
        m_panel.timerMeteors = m_panel.chkLightning;
        show();
        m_ports.pacer.yieldToEvents();
    });
}

void BattleControls::chkLightning_Click(bool ticked) {
    m_effect.give(AmbientEffect::Command::BoxClick, [this, ticked] {
        markActivity();
        m_panel.chkLightning = ticked;
        m_panel.timerLightning = ticked;
        show();
        m_ports.pacer.yieldToEvents();
    });
}

void BattleControls::chkWind_Click(bool ticked) {
    markActivity();
    m_panel.chkWind = ticked;
    if (ticked) {
        do {
            m_state.Wind = RandomInt(m_ports.random, -39, 39);
        } while (std::abs(m_state.Wind) <= 5);
        m_panel.chkWindCaption = windCaption(m_state.Wind);
    } else {
        m_state.Wind = 0;
        m_panel.chkWindCaption = "Wind";
    }
    show();
}

void BattleControls::cmdQuit_Click() {
    if (isWaiting()) m_effect.give(AmbientEffect::Command::Quit, [this] { leave(); });
}

void BattleControls::leave() {
    if (!isWaiting()) return;  // any more
    markActivity();
    stopTimers();
    m_isLeaving = true;
    if (!mayLeave()) {
        m_isLeaving = false;
        markActivity();
        startTimers();
        return;
    }
    offerToKeepGameSpeed();
    saveOptions();
    // The yield below must not let a second command in.
    m_panel.commandsEnabled = false;
    m_ports.view.holdInput();
    m_ports.pacer.yieldToEvents();
    m_ports.view.closeBattle();
}

bool BattleControls::mayLeave() {
    // The first and the last round are left without asking.
    if (m_state.RoundNumber <= 1 || m_state.RoundNumber >= m_shared.NumRounds) return true;
    return m_ports.boxes.show({std::string{kProgramTitle},
                               "Are you sure you want to quit this set?", BoxIcon::Question,
                               BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void BattleControls::offerToKeepGameSpeed() {
    if (m_shared.GameSpeed == m_gameSpeedAtStart) return;
    const auto answer =
        m_ports.boxes.show({"Game Speed Setting",
                            "I notice you've changed the game speed setting.\r\n\r\n"
                            "Would you like to keep this speed setting from now on?",
                            BoxIcon::Question, BoxButtons::YesNo});
    if (answer == BoxAnswer::Yes)
        m_ports.settings.save("GameSpeed", std::to_string(m_shared.GameSpeed));
}

void BattleControls::saveOptions() {
    SettingsStore& store = m_ports.settings;
    settings::saveFlag(store, "SoundSetting", m_panel.chkSound);
    settings::saveFlag(store, "TrajectorySetting", m_panel.chkTrajectory);
    settings::saveFlag(store, "MeteorsSetting", m_panel.chkMeteors);
    settings::saveFlag(store, "LightningSetting", m_panel.chkLightning);
    settings::saveFlag(store, "WindSetting", m_panel.chkWind);
}

void BattleControls::startTimers() {
    if (m_panel.chkMeteors) m_panel.timerMeteors = true;
    if (m_panel.chkLightning) m_panel.timerLightning = true;
    show();
}

void BattleControls::stopTimers() {
    if (m_panel.chkMeteors) m_panel.timerMeteors = false;
    if (m_panel.chkLightning) m_panel.timerLightning = false;
    show();
}

void BattleControls::meteorBegins() {
    if (m_panel.chkLightning) m_panel.timerLightning = false;
    show();
}

void BattleControls::meteorEnds() {
    if (m_panel.chkLightning) m_panel.timerLightning = true;
    show();
}

void BattleControls::stormBegins() {
    if (m_panel.chkMeteors) m_panel.timerMeteors = false;
    m_panel.timerLightning = false;
    show();
}

void BattleControls::stormEnds() {
    if (m_panel.chkMeteors) m_panel.timerMeteors = true;
    m_panel.timerLightning = true;
    show();
}

bool BattleControls::isIdle() const {
    using namespace std::chrono;
    if (!isWaiting() || m_effect.isRunning() || m_effect.isInterrupted()) return false;
    return floor<seconds>(m_ports.clock.now() - m_state.TurnStartTime) >= 12s;
}

void BattleControls::disableForShot(int shooter) {
    m_panel.commandsEnabled = false;
    m_panel.side[shooter].enabled = false;
    show();
}

void BattleControls::showTurn(int shooter) {
    for (const int side : {1, 2}) m_panel.side[side].enabled = side == shooter;
    m_panel.turn = shooter;
    show();
}

void BattleControls::showMenLeft() {
    for (const int side : {1, 2}) {
        m_panel.side[side].menLeft = m_state.MenLeft[side];
        m_panel.side[side].labelMenLeft = "Men Left: " + std::to_string(m_state.MenLeft[side]);
    }
    show();
}

void BattleControls::showRoundNumber() {
    m_panel.labelRoundNumber = "Round " + std::to_string(m_state.RoundNumber) + " of " +
                               std::to_string(m_shared.NumRounds);
    show();
}

void BattleControls::enableCommands() {
    m_panel.commandsEnabled = true;
    setGameSpeed(m_shared.GameSpeed);
    markActivity();
    show();
}

void BattleControls::markActivity() {
    m_state.TurnStartTime = m_ports.clock.now();
}

void BattleControls::click() {
    if (m_state.SoundOn) m_ports.sounds.PlaySound("click");
}

void BattleControls::show() {
    m_ports.view.showPanel(m_panel);
}

}  // namespace skylob
