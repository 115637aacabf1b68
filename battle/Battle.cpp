#include "battle/Battle.h"

#include <cstdlib>
#include <string>

#include "battle/BattleSettings.h"
#include "battle/Casualties.h"
#include "battle/Explosion.h"

namespace skylob {

namespace {
constexpr int kWidestNarrowDisplay = 800;  // logical pixels; the ground has finer lines there
constexpr int kMenInARound = 100;
constexpr Aim kFirstAim{300, 75};
}  // namespace

Battle::Battle(basSkylob& shared, const BattlePorts& ports, BattleView& view)
    : m_shared{shared},
      m_ports{ports},
      m_view{view},
      m_animation{m_picture, view, ports.pacer},
      m_sounds{ports.sounds, m_state},
      m_desk{m_state, shared, ports.clock, m_sounds, view},
      m_aims{m_state.aim, [this] { m_desk.barMoved(); }},
      m_effect{ports.pacer},
      m_commands{m_state, m_effect},
      m_options{shared, m_state, m_desk, m_commands, ports.random, ports.pacer},
      m_computer{m_state, m_aims, ports.random},
      m_meteors{{m_state, m_animation, ports.random, m_effect}, shared},
      m_storm{{m_state, m_animation, ports.random, m_effect}, m_sounds, ports.pacer, view},
      m_ambientClock{
          {m_state, m_animation, ports.random, m_effect}, ports.clock, m_desk, m_meteors, m_storm} {
}

void Battle::Form_Activate() {
    if (m_activated) return;
    m_activated = true;
    restoreOptions(m_state, m_shared, m_ports.settings);
    m_shared.RoundsWon = {};
    m_shared.TotalKills = {};
    m_shared.SetOver = false;
    StartRound();
}

void Battle::StartRound() {
    for (const int side : kSides) {
        m_aims.setAngle(side, kFirstAim.angle);
        m_aims.setSpeed(side, kFirstAim.speed);
        m_state.MenLeft[side] = kMenInARound;
        m_shared.RoundKills[side] = 0;
        m_shared.RoundShots[side] = 0;
    }
    ++m_state.RoundNumber;
    m_desk.show();
    if (m_state.chkWind) m_options.drawWind();
    chooseFirstShooter();
    m_shared.Winner = 0;
    m_shared.SelfHit = false;
    m_shared.DirectHit = false;
    GenerateBattlefield();
    BeginTurn();
}

void Battle::chooseFirstShooter() {
    if (m_state.RoundNumber > 1) {
        // The loser opens the next round. The computer goes on correcting its last miss.
        m_state.Shooter = opponentOf(m_shared.Winner);
    } else if (m_shared.isComputer(kRight)) {
        m_state.Shooter = kLeft;
        m_state.AimDistance = 0;
    } else {
        m_state.Shooter = RandomInt(m_ports.random, kLeft, kRight);
    }
}

void Battle::GenerateBattlefield() {
    m_view.showCursor(BattleCursor::Hourglass);
    m_view.holdInput();
    generateBattlefield(m_state.field, m_ports.random, m_state.RoundNumber, m_shared.NumRounds);
    m_state.field.starWidth = m_state.penWidth;
    m_state.penWidth = drawField();
    m_view.showCursor(BattleCursor::Normal);
}

/// Returns the width of the ground's lines.
int Battle::drawField() {
    const int groundLineWidth = m_view.displayWidth() <= kWidestNarrowDisplay ? 1 : 2;
    drawBattlefield(m_state.field, m_picture, groundLineWidth);
    m_view.showField();
    return groundLineWidth;
}

void Battle::BeginTurn() {
    m_state.phase = Phase::Turn;
    m_state.turnNotice = {m_state.Shooter, m_state.MenLeft};
    m_shared.NearMiss = false;
    m_desk.show();
    if (m_state.MenLeft[m_state.Shooter] < 1)
        loseWithoutMen();
    else if (m_shared.isComputer(m_state.Shooter))
        ComputerTurn();
    else
        waitForPlayer();
}

void Battle::loseWithoutMen() {
    const std::string& name = m_shared.PlayerName[m_state.Shooter];
    m_shared.Winner = opponentOf(m_state.Shooter);
    m_ports.boxes.show({name + " loses this round!",
                        name + "-\r\n\r\nYou can't shoot because you have no men left!",
                        BoxIcon::Critical, BoxButtons::Ok});
    FinishShot();
}

void Battle::ComputerTurn() {
    m_ports.pacer.Wait(1);
    m_computer.takeAim(m_shared.SkillLevel);
    m_ports.pacer.yieldToEvents();
    m_ports.pacer.Wait(0.25f);
    fire();
}

void Battle::waitForPlayer() {
    m_view.releaseInput();
    m_state.phase = Phase::Waiting;
    m_options.setGameSpeed(m_shared.GameSpeed);
    m_desk.markActivity();
    m_ambientClock.startTimers();
}

void Battle::cmdShoot_Click() {
    m_commands.give(Deed::Shoot, [this] { fire(); });
}

void Battle::fire() {
    m_view.holdInput();
    m_state.phase = Phase::Shot;
    m_ambientClock.stopTimers();
    ++m_shared.RoundShots[m_state.Shooter];
    m_sounds.PlaySound("shot");
    FireShell();
}

void Battle::FireShell() {
    const int shooter = m_state.Shooter;
    const Battlefield& field = m_state.field;
    const auto& [speed, angle] = m_state.aim[shooter];
    const Launch launch{shooter,     speed, angle, field.PieceX[shooter], field.PieceY[shooter],
                        m_state.Wind};
    const Trail trail = m_state.ShowTrajectory ? Trail::Coloured : Trail::None;
    const FieldPoint at =
        flyShell(launch, field, trail, m_animation, FlightDelayCount(m_shared.GameSpeed));
    if (m_shared.PlayerName[shooter] == kComputerName) m_state.LastImpactX = at.x;

    const Landing landing =
        classifyLanding(at.x, field.PieceX[shooter], field.PieceX[opponentOf(shooter)]);
    m_shots.push_back({shooter, speed, angle, at, landing});
    settle(landing, at);
}

void Battle::settle(Landing landing, FieldPoint at) {
    const int target = opponentOf(m_state.Shooter);
    const int targetX = m_state.field.PieceX[target];
    m_shared.SelfHit = landing == Landing::SelfHit;
    m_shared.DirectHit = landing == Landing::DirectHit;
    if (landing == Landing::NearMiss) {
        m_shared.NearMiss = true;
        m_state.NearMissKills = nearMissKills(m_state.MenLeft[target], std::abs(at.x - targetX));
        at.x = targetX;  // the blast is seen on the target
    }
    Explode(at, landing);
    FinishShot();
}

void Battle::Explode(FieldPoint at, Landing landing) {
    m_sounds.PlaySound(landingSound(landing));
    if (landing == Landing::OutOfBounds) return;
    animateExplosion(at, landing, m_animation, FlightDelayCount(m_shared.GameSpeed));
    m_state.penWidth = 1;
}

void Battle::FinishShot() {
    creditShot(m_shared, m_state);
    if (m_shared.Winner >= 1) return EndRound();
    desert(m_state, m_ports.random);
    m_state.Shooter = opponentOf(m_state.Shooter);
    afterShot(&Battle::BeginTurn);
}

void Battle::afterShot(void (Battle::*next)()) {
    if (m_shared.isComputer(m_shots.back().side))
        m_view.queue([this, next] { (this->*next)(); });
    else
        (this->*next)();
}

void Battle::EndRound() {
    ++m_shared.RoundsWon[m_shared.Winner];
    m_ports.pacer.Wait(1);
    m_view.showSummary(SummaryKind::Round);
    if (m_state.RoundNumber == m_shared.NumRounds)
        EndSet();
    else
        afterShot(&Battle::StartRound);
}

void Battle::EndSet() {
    m_shared.SetOver = true;
    m_view.showCursor(BattleCursor::Hourglass);
    m_ports.pacer.Wait(1);
    m_view.showCursor(BattleCursor::Normal);
    m_view.showSummary(SummaryKind::Set);
    m_view.closeBattle();
}

void Battle::cmdQuit_Click() {
    m_commands.give(Deed::Quit, [this] { leave(); });
}

void Battle::leave() {
    m_desk.markActivity();
    m_ambientClock.stopTimers();
    m_state.phase = Phase::Asking;
    if (!confirmsLeaving(m_state, m_shared, m_ports.boxes)) {
        m_state.phase = Phase::Waiting;
        m_desk.markActivity();
        m_ambientClock.startTimers();
        return;
    }
    offerToKeepGameSpeed(m_state, m_shared, m_ports.boxes, m_ports.settings);
    saveOptions(m_state, m_ports.settings);
    m_state.phase = Phase::Left;
    m_view.holdInput();
    m_ports.pacer.yieldToEvents();
    m_view.closeBattle();
}

}  // namespace skylob
