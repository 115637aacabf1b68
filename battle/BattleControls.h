#pragma once

#include "base/basSkylob.h"
#include "battle/AmbientEffect.h"
#include "battle/BattlePanel.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"

namespace skylob {

/// The controls of the battle screen and the options behind them.
///
/// The handlers are named after the control and its event. A screen calls them when the player
/// has changed a control; the rules change one with the set... functions, which run the same
/// handlers, so that labels follow and changes click whoever made them. Every handler marks the
/// time as the last activity. While a meteor or a storm is under way, quitting and the clicks on
/// its two boxes end it and follow it.
class BattleControls {
  public:
    /// All three must outlive the controls.
    BattleControls(basSkylob& shared, BattleState& state, const BattlePorts& ports);

    const BattlePanel& panel() const { return m_panel; }

    /// Reads the game speed and the options from the settings, without running any handler.
    void restoreOptions();

    /// Values outside a control's range are brought to the nearer end. A value that is there
    /// already is no change.
    void setSpeed(int side, int value);
    void setAngle(int side, int value);
    void setGameSpeed(int value);
    int speed(int side) const { return m_panel.side[side].scrollSpeed.value; }
    int angle(int side) const { return m_panel.side[side].scrollAngle.value; }

    /// Draws a new wind when the wind box is ticked and calms it otherwise.
    void chkWind_Click(bool ticked);
    void chkSound_Click(bool ticked);
    void chkTrajectory_Click(bool ticked);
    void chkMeteors_Click(bool ticked);
    void chkLightning_Click(bool ticked);

    /// The player wants to leave the set: asks where it has to, saves the options and closes
    /// the battle. Does nothing while the commands are disabled.
    void cmdQuit_Click();

    /// The meteor and lightning timers whose boxes are ticked run or stop.
    void startTimers();
    void stopTimers();

    /// A meteor holds the lightning timer if its box is ticked. A storm holds its own timer, and
    /// the meteors' if their box is ticked.
    void meteorBegins();
    void meteorEnds();
    void stormBegins();
    void stormEnds();

    /// The meteor or storm that may be under way.
    AmbientEffect& effect() { return m_effect; }

    /// The screen waits for the player's next command: no shot is under way, no computer's turn,
    /// and nobody has been asked anything.
    bool isWaiting() const { return m_panel.commandsEnabled && !m_isLeaving; }

    /// It has been waiting without any activity for 12 whole seconds or more, and no effect is
    /// under way.
    bool isIdle() const;

    /// A shell is fired: nothing is usable until enableCommands().
    void disableForShot(int shooter);
    /// The turn is `shooter`'s: its own controls are usable, its opponent's are not.
    void showTurn(int shooter);
    void showMenLeft();
    void showRoundNumber();
    /// A human's turn: the commands are usable again and the game speed bar shows the speed.
    void enableCommands();

  private:
    void scrollSpeed_Change(int side);
    void scrollAngle_Change(int side);
    void scrollGameSpeed_Change();
    void markActivity();
    void click();
    void show();
    void leave();
    bool mayLeave();
    void offerToKeepGameSpeed();
    void saveOptions();

    basSkylob& m_shared;
    BattleState& m_state;
    BattlePorts m_ports;
    BattlePanel m_panel;
    AmbientEffect m_effect;
    bool m_isLeaving = false;  ///< the player is being asked whether and how to leave
    int m_gameSpeedAtStart = 50;
};

}  // namespace skylob
