#pragma once

#include <string_view>
#include <vector>

#include "base/basSkylob.h"
#include "battle/BattleControls.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"
#include "battle/ComputerOpponent.h"
#include "battle/FieldPicture.h"
#include "battle/LightningStorm.h"
#include "battle/Meteors.h"
#include "battle/ShellFlight.h"

namespace skylob {

/// One shell of the set, as it was fired and as it came down.
struct Shot {
    int side = 0, speed = 0, angle = 0;
    FieldPoint landedAt;
    Landing landing = Landing::Miss;
};

/// The referee of a set: who fires when, what a shell does, when a round and the set are
/// decided. A side that is no computer's fires when cmdShoot_Click is called; the computer fires
/// by itself. Shots run to their end, explosion, next turn and summary included, inside the call
/// that fires them; only the turn after a computer's shot is queued on the view, so that a long
/// set does not pile up on the stack.
class Battle {
  public:
    /// `shared` and everything in `ports` must outlive the battle. Player names, skill level
    /// and number of rounds are taken from `shared` and must not change during the set.
    Battle(basSkylob& shared, const BattlePorts& ports);

    Battle(const Battle&) = delete;
    Battle& operator=(const Battle&) = delete;

    /// Starts the set; later calls do nothing, so that a box that closes over the battle does
    /// not start it again.
    void Form_Activate();

    /// Fires the shooter's shell. Does nothing while the commands are disabled. A meteor or a
    /// storm ends first.
    void cmdShoot_Click();
    /// A click on either piece is one on the shoot button.
    void FieldPiece_Click() { cmdShoot_Click(); }

    /// The ticks of the screen's timers, which run while the panel says so. A tick that finds the
    /// player busy, or the battle not waiting for the player at all, does nothing.
    void timerMeteors_Timer() { m_meteors.timerMeteors_Timer(); }
    void timerLightning_Timer() { m_storm.timerLightning_Timer(); }

    /// The picture of the field has another size or another display: draws it anew.
    void redrawField() { drawField(); }

    BattleControls& controls() { return m_controls; }
    const BattleState& state() const { return m_state; }
    const basSkylob& shared() const { return m_shared; }
    /// Every shell of the set so far, in order.
    const std::vector<Shot>& shots() const { return m_shots; }

    /// The picture to show; its size is the screen's to choose.
    FieldPicture& picture() { return m_picture; }

  private:
    void StartRound();
    void chooseFirstShooter();
    void GenerateBattlefield();
    int drawField();
    void BeginTurn();
    void loseWithoutMen();
    void fire();
    void FireShell();
    void Explode(FieldPoint at, Landing landing);
    void FinishShot();
    void creditKills(int side, int kills);
    void desert();
    void afterShot(void (Battle::*next)());
    void EndRound();
    void EndSet();
    void play(std::string_view sound);

    basSkylob& m_shared;
    BattlePorts m_ports;
    BattleState m_state;
    FieldPicture m_picture;
    FieldAnimation m_animation;
    BattleControls m_controls;
    ComputerOpponent m_computer;
    Meteors m_meteors;
    LightningStorm m_storm;
    std::vector<Shot> m_shots;
    bool m_activated = false;
};

}  // namespace skylob
