#include "battle/Battle.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "battle/Explosion.h"

namespace skylob {

Battle::Battle(basSkylob& shared, const BattlePorts& ports)
    : m_shared{shared},
      m_ports{ports},
      m_animation{m_picture, ports.view, ports.pacer},
      m_controls{shared, m_state, ports},
      m_computer{shared, m_state, m_controls, ports},
      m_meteors{shared, m_state, m_controls, ports, m_animation},
      m_storm{m_state, m_controls, ports, m_animation} {
}

void Battle::Form_Activate() {
    if (m_activated) return;
    m_activated = true;
    m_controls.restoreOptions();
    m_shared.RoundsWon = {};
    m_shared.TotalKills = {};
    m_state.RoundNumber = 0;
    m_shared.SetOver = false;
    StartRound();
}

void Battle::StartRound() {
    for (const int side : {1, 2}) {
        m_controls.setAngle(side, 75);
        m_controls.setSpeed(side, 300);
        m_state.MenLeft[side] = 100;
        m_shared.RoundKills[side] = 0;
        m_shared.RoundShots[side] = 0;
    }
    ++m_state.RoundNumber;
    m_controls.showRoundNumber();
    if (m_controls.panel().chkWind) m_controls.chkWind_Click(true);
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
    } else if (m_shared.isComputer(2)) {
        m_state.Shooter = 1;
        m_state.AimDistance = 0;
    } else {
        m_state.Shooter = RandomInt(m_ports.random, 1, 2);
    }
}

void Battle::GenerateBattlefield() {
    m_ports.view.showCursor(BattleCursor::Hourglass);
    m_ports.view.holdInput();
    generateBattlefield(m_state.field, m_ports.random, m_state.RoundNumber, m_shared.NumRounds);
    m_state.field.starWidth = m_state.penWidth;
    m_state.penWidth = drawField();
    m_ports.view.showCursor(BattleCursor::Normal);
}

/// Returns the width of the ground's lines.
int Battle::drawField() {
    const int groundLineWidth = m_ports.view.displayWidth() <= 800 ? 1 : 2;
    drawBattlefield(m_state.field, m_picture, groundLineWidth);
    m_ports.view.showField();
    return groundLineWidth;
}

void Battle::BeginTurn() {
    m_controls.showTurn(m_state.Shooter);
    m_shared.NearMiss = false;
    m_controls.showMenLeft();
    if (m_state.MenLeft[m_state.Shooter] < 1) {
        loseWithoutMen();
    } else if (m_shared.isComputer(m_state.Shooter)) {
        m_computer.ComputerTurn();
        fire();
    } else {
        m_ports.view.releaseInput();
        m_controls.enableCommands();
        m_controls.startTimers();
    }
}

void Battle::loseWithoutMen() {
    const std::string& name = m_shared.PlayerName[m_state.Shooter];
    m_shared.Winner = opponentOf(m_state.Shooter);
    m_ports.boxes.show({name + " loses this round!",
                        name + "-\r\n\r\nYou can't shoot because you have no men left!",
                        BoxIcon::Critical, BoxButtons::Ok});
    FinishShot();
}

void Battle::cmdShoot_Click() {
    if (!m_controls.isWaiting()) return;
    m_controls.effect().give(AmbientEffect::Command::Shoot, [this] {
        if (m_controls.isWaiting()) fire();
    });
}

void Battle::fire() {
    m_ports.view.holdInput();
    m_controls.stopTimers();
    m_controls.disableForShot(m_state.Shooter);
    ++m_shared.RoundShots[m_state.Shooter];
    play("shot");
    FireShell();
}

void Battle::FireShell() {
    const int shooter = m_state.Shooter, target = opponentOf(shooter);
    const PerSide<int>& pieceX = m_state.field.PieceX;
    const Launch launch{shooter,         m_controls.speed(shooter),     m_controls.angle(shooter),
                        pieceX[shooter], m_state.field.PieceY[shooter], m_state.Wind};
    FieldPoint at =
        flyShell(launch, m_state.field, m_state.ShowTrajectory ? Trail::Coloured : Trail::None,
                 m_animation, FlightDelayCount(m_shared.GameSpeed));
    if (m_shared.PlayerName[shooter] == kComputerName) m_state.LastImpactX = at.x;

    const Landing landing = classifyLanding(at.x, pieceX[shooter], pieceX[target]);
    m_shots.push_back({shooter, launch.speed, launch.angle, at, landing});
    m_shared.SelfHit = landing == Landing::SelfHit;
    m_shared.DirectHit = landing == Landing::DirectHit;
    if (landing == Landing::NearMiss) {
        m_shared.NearMiss = true;
        m_state.NearMissKills =
            nearMissKills(m_state.MenLeft[target], std::abs(at.x - pieceX[target]));
        at.x = pieceX[target];  // the blast is seen on the target
    }
    Explode(at, landing);
    FinishShot();
}

void Battle::Explode(FieldPoint at, Landing landing) {
    play(landingSound(landing));
    if (landing == Landing::OutOfBounds) return;
    animateExplosion(at, landing, m_animation, FlightDelayCount(m_shared.GameSpeed));
    m_state.penWidth = 1;
}

void Battle::FinishShot() {
    const int shooter = m_state.Shooter, target = opponentOf(shooter);
    if (m_shared.SelfHit) {
        m_shared.Winner = target;
        creditKills(target, m_state.MenLeft[shooter]);
    }
    if (m_shared.DirectHit) {
        m_shared.Winner = shooter;
        creditKills(shooter, m_state.MenLeft[target]);
    }
    if (m_shared.NearMiss) {
        int& men = m_state.MenLeft[target];
        men = std::max(0, men - m_state.NearMissKills);
        creditKills(shooter, m_state.NearMissKills);
        if (men == 0) m_shared.Winner = shooter;
    }
    if (m_shared.Winner < 1) {
        desert();
        m_state.Shooter = target;
        afterShot(&Battle::BeginTurn);
    } else {
        EndRound();
    }
}

void Battle::creditKills(int side, int kills) {
    m_shared.RoundKills[side] += kills;
    m_shared.TotalKills[side] += kills;
}

void Battle::desert() {
    // Deserters are nobody's kills.
    int& men = m_state.MenLeft[m_state.Shooter];
    men = std::max(0, men - RandomInt(m_ports.random, 1, 15));
}

void Battle::afterShot(void (Battle::*next)()) {
    if (m_shared.isComputer(m_shots.back().side))
        m_ports.view.queue([this, next] { (this->*next)(); });
    else
        (this->*next)();
}

void Battle::EndRound() {
    ++m_shared.RoundsWon[m_shared.Winner];
    m_ports.pacer.Wait(1);
    m_ports.view.showSummary(SummaryKind::Round);
    if (m_state.RoundNumber == m_shared.NumRounds)
        EndSet();
    else
        afterShot(&Battle::StartRound);
}

void Battle::EndSet() {
    m_shared.SetOver = true;
    m_ports.view.showCursor(BattleCursor::Hourglass);
    m_ports.pacer.Wait(1);
    m_ports.view.showCursor(BattleCursor::Normal);
    m_ports.view.showSummary(SummaryKind::Set);
    m_ports.view.closeBattle();
}

void Battle::play(std::string_view sound) {
    if (m_state.SoundOn) m_ports.sounds.PlaySound(sound);
}

}  // namespace skylob
