#pragma once

#include <functional>
#include <vector>

#include "base/basSkylob.h"
#include "battle/Aims.h"
#include "battle/AmbientClock.h"
#include "battle/BattleObserver.h"
#include "battle/BattleOptions.h"
#include "battle/BattlePorts.h"
#include "battle/BattleView.h"
#include "battle/Commands.h"
#include "battle/ComputerOpponent.h"
#include "battle/ControlDesk.h"
#include "battle/FieldPicture.h"
#include "battle/Gunnery.h"

namespace skylob {

/// The referee of a set: who fires when, what a shell does, when a round and the set are
/// decided. A side that is no computer's fires when cmdShoot_Click is called; the computer fires
/// by itself. Shots run to their end, explosion, next turn and summary included, inside the call
/// that fires them; only the turn after a computer's shot is queued on the view, so that a long
/// set does not pile up on the stack.
///
/// Handlers are named after the control and its event. A command that comes at the wrong time does
/// nothing; one that comes while a meteor or a storm is under way ends it and follows it.
class Battle {
  public:
    /// `shared`, `view` and everything in `ports` must outlive the battle. Player names, skill
    /// level and number of rounds are taken from `shared` and must not change during the set.
    Battle(basSkylob& shared, const BattlePorts& ports, BattleView& view);

    Battle(const Battle&) = delete;
    Battle& operator=(const Battle&) = delete;

    /// Starts the set; later calls do nothing, so that a box that closes over the battle does
    /// not start it again.
    void Form_Activate();

    /// Fires the shooter's shell.
    void cmdShoot_Click();
    /// A click on either piece is one on the shoot button.
    void FieldPiece_Click() { cmdShoot_Click(); }

    /// The player wants to leave the set: asks where it has to, saves the options and closes the
    /// battle.
    void cmdQuit_Click();

    /// The player wants to read the rules: nothing comes over the battle meanwhile. Refused while
    /// a meteor or a storm is under way.
    void readRules();

    /// The set is only watched: it takes no command of the player's but leaving, and game speed;
    /// neither a meteor nor a storm comes. To be called before the set starts.
    void watch() { m_isWatched = true; }

    /// Runs `commands` of a set that is watched: they are taken as those of the player whose turn
    /// it is.
    void asThePlayer(const std::function<void()>& commands) { m_commands.asThePlayer(commands); }

    /// The ticks of the screen's timers, which run while the panel says so.
    void timerMeteors_Timer() { m_ambientClock.timerMeteors_Timer(); }
    void timerLightning_Timer() { m_ambientClock.timerLightning_Timer(); }

    Aims& aims() { return m_aims; }
    BattleOptions& options() { return m_options; }

    /// What the view has been shown last.
    const BattlePanel& panel() const { return m_desk.panel(); }
    const BattleState& state() const { return m_state; }
    const basSkylob& shared() const { return m_shared; }
    /// Every shell of the set so far, in order.
    const std::vector<Shot>& shots() const { return m_shots; }
    /// A meteor or a storm is under way.
    bool effectIsRunning() const { return m_effect.isRunning(); }

    /// The picture to show; its size is the screen's to choose.
    FieldPicture& picture() { return m_picture; }
    const FieldPicture& picture() const { return m_picture; }
    /// What is happening on it, for the eyes.
    const FieldScene& scene() const { return m_animation.scene(); }
    /// Neither a shot nor a meteor nor a storm is under way: the picture may be resized.
    bool fieldIsStill() const { return m_state.phase != Phase::Shot && !effectIsRunning(); }
    /// The picture of the field has another size or another display: draws it anew, with the trails
    /// and marks that were on it.
    void replotField();

  private:
    void StartRound();
    void chooseFirstShooter();
    void GenerateBattlefield();
    int drawField();
    void BeginTurn();
    void ComputerTurn();
    void waitForPlayer();
    Phase playersPhase() const { return m_isWatched ? Phase::Watching : Phase::Waiting; }
    void loseWithoutMen();
    void fire();
    void FireShell();
    void Explode(FieldPoint at, Landing landing);
    void FinishShot(ShotReport report);
    void tell(const ShotReport& report);
    void afterShot(void (Battle::*next)());
    void EndRound();
    void EndSet();
    void leave();
    void setAside();
    void takeUp();

    basSkylob& m_shared;
    BattlePorts m_ports;
    BattleView& m_view;
    BattleObserver m_nobody;  ///< where nobody wants to be told
    BattleObserver& m_observer;
    BattleState m_state;
    FieldPicture m_picture;
    FieldAnimation m_animation;
    SwitchedSounds m_sounds;
    ControlDesk m_desk;
    Aims m_aims;
    AmbientEffect m_effect;
    Commands m_commands;
    BattleOptions m_options;
    ComputerOpponent m_computer;
    Sky m_sky;
    Meteors m_meteors;
    LightningStorm m_storm;
    AmbientClock m_ambientClock;
    std::vector<Shot> m_shots;
    bool m_activated = false, m_isWatched = false;
};

}  // namespace skylob
