#include "battle/Battle.h"

#include "battle/BattleQuestions.h"
#include "battle/BattleSettings.h"
#include "battle/Casualties.h"
#include "battle/Explosion.h"

namespace skylob {

namespace {
constexpr int kWidestNarrowDisplay = 800;  // its own pixels; the ground has finer lines there
constexpr int kMenInARound = 100;
constexpr Aim kFirstAim{300, 75};
}  // namespace

Battle::Battle(basSkylob& shared, const BattlePorts& ports, BattleView& view)
    : m_shared{shared},
      m_ports{ports},
      m_view{view},
      m_observer{ports.observer ? *ports.observer : m_nobody},
      m_animation{m_picture, view, ports.pacer},
      m_sounds{ports.sounds, m_state},
      m_desk{m_state, shared, ports.clock, m_sounds, view},
      m_aims{m_state.aim, [this] { m_desk.barMoved(); }},
      m_effect{ports.pacer},
      m_commands{m_state, m_effect},
      m_options{shared, m_state, m_desk, m_commands, ports.random, ports.pacer, m_observer},
      m_computer{m_state, m_aims, ports.random},
      m_sky{m_state, m_animation, ports.random, m_effect},
      m_meteors{m_sky, shared},
      m_storm{m_sky, m_sounds, ports.pacer, view},
      m_ambientClock{m_sky, ports.clock, m_desk, m_meteors, m_storm} {
}

void Battle::Form_Activate() {
    if (m_activated) return;
    m_activated = true;
    restoreOptions(m_state, m_shared, m_ports.settings);
    m_shared.RoundsWon = {};
    m_shared.TotalKills = {};
    m_shared.SetOver = false;
    m_observer.setBegins(m_shared, m_state);
    StartRound();
}

void Battle::StartRound() {
    for (const int side : kSides) {
        m_aims.setAngle(side, kFirstAim.angle);
        m_aims.setSpeed(side, kFirstAim.speed);
        m_state.MenLeft[side] = kMenInARound;
        m_shared.RoundKills[side] = 0;
        m_shared.RoundShots[side] = 0;
        m_state.lastShot[side].reset();
    }
    ++m_state.RoundNumber;
    m_desk.show();
    m_observer.rulesDraw();
    if (m_state.chkWind) m_options.drawWind();
    chooseFirstShooter();
    m_shared.Winner = 0;
    m_shared.SelfHit = false;
    m_shared.DirectHit = false;
    GenerateBattlefield();
    m_observer.roundBegun(m_state);
    BeginTurn();
}

void Battle::chooseFirstShooter() {
    if (m_state.RoundNumber > 1) {
        // The loser opens the next round. Quirk "lasting memory": the computer goes on correcting
        // its last miss.
        m_state.Shooter = opponentOf(m_shared.Winner);
    } else if (m_shared.isComputer(kRightSide)) {
        m_state.Shooter = kLeftSide;
        m_state.AimDistance = 0;
    } else {
        m_state.Shooter = RandomInt(m_ports.random, kLeftSide, kRightSide);
    }
}

void Battle::GenerateBattlefield() {
    m_view.showCursor(BattleCursor::Hourglass);
    m_view.holdInput();
    m_animation.scene().clear();
    generateBattlefield(m_state.field, m_ports.random, m_state.RoundNumber, m_shared.NumRounds);
    // Quirk "wide stars": the pen may still be as wide as the ground's lines of the round before.
    m_state.field.starWidth = m_state.penWidth;
    m_state.penWidth = drawField();
    m_view.showField();
    m_view.showCursor(BattleCursor::Normal);
}

/// Returns the width of the ground's lines.
int Battle::drawField() {
    const int groundLineWidth = m_view.displayWidth() <= kWidestNarrowDisplay ? 1 : 2;
    drawBattlefield(m_state.field, m_picture, groundLineWidth);
    return groundLineWidth;
}

void Battle::replotField() {
    const std::vector<FieldPicture::PassingPoint> passing = m_picture.passingPoints();
    drawField();
    for (const auto& [x, y, colour, width] : passing)
        m_picture.setPassingPoint(x, y, colour, width);
    m_view.showField();
}

void Battle::BeginTurn() {
    m_state.phase = Phase::Turn;
    m_state.turnNotice = {m_state.Shooter, m_state.MenLeft};
    m_shared.NearMiss = false;
    m_desk.show();
    // Quirk "turn without men": asked only here, when the other side has had one more shot.
    if (m_state.MenLeft[m_state.Shooter] < 1)
        loseWithoutMen();
    else if (m_shared.isComputer(m_state.Shooter))
        ComputerTurn();
    else
        waitForPlayer();
}

void Battle::loseWithoutMen() {
    m_shared.Winner = opponentOf(m_state.Shooter);
    tellOfNoMen(m_shared.PlayerName[m_state.Shooter], m_ports.boxes);
    FinishShot({.side = m_state.Shooter});
}

void Battle::ComputerTurn() {
    m_ports.pacer.Wait(1);
    m_observer.rulesDraw();
    m_computer.takeAim(m_shared.SkillLevel);
    m_ports.pacer.yieldToEvents();
    m_ports.pacer.Wait(0.25f);
    fire();
}

void Battle::waitForPlayer() {
    m_view.releaseInput();
    m_state.phase = playersPhase();
    m_options.setGameSpeed(m_shared.GameSpeed);
    m_desk.markActivity();
    m_ambientClock.startTimers();
}

void Battle::cmdShoot_Click() {
    m_commands.give(Deed::Shoot, [this] {
        m_observer.rulesDraw();
        fire();
    });
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
    const Shot shot = flyShot(m_state, m_shared.GameSpeed, m_animation);
    m_shots.push_back(shot);
    if (m_shared.PlayerName[shot.side] == kComputerName) m_state.LastImpactX = shot.landedAt.x;
    judgeShot(shot, m_shared, m_state);
    if (isHit(shot.landing))
        m_animation.scene().wrecked[m_shared.SelfHit ? shot.side : opponentOf(shot.side)] = true;
    Explode(blastOf(shot, m_state), shot.landing);
    FinishShot(reportOf(shot, m_state));
}

void Battle::Explode(FieldPoint at, Landing landing) {
    m_sounds.PlaySound(landingSound(landing));
    if (landing == Landing::OutOfBounds) return;
    animateExplosion(at, landing, m_animation, FlightDelayCount(m_shared.GameSpeed));
    m_state.penWidth = 1;
}

void Battle::FinishShot(ShotReport report) {
    creditShot(m_shared, m_state);
    report.end = roundEndOf(m_shared);
    if (report.end == RoundEnd::None) report.deserted = desert(m_state, m_ports.random);
    tell(report);
    if (report.end != RoundEnd::None) return EndRound();
    m_state.Shooter = opponentOf(m_state.Shooter);
    afterShot(&Battle::BeginTurn);
}

void Battle::tell(const ShotReport& report) {
    m_state.report = report;
    if (!report.wasFired()) return m_observer.turnLost(report.side);
    m_state.lastShot[report.side] = report;
    m_animation.scene().lastLanding[report.side] = markOf(m_shots.back(), m_state.field);
    m_observer.shotDone(m_shots.back(), report, m_state);
}

void Battle::afterShot(void (Battle::*next)()) {
    if (m_shared.isComputer(m_shots.back().side))
        m_view.queue([this, next] { (this->*next)(); });
    else
        (this->*next)();
}

void Battle::EndRound() {
    ++m_shared.RoundsWon[m_shared.Winner];
    m_desk.show();
    m_ports.pacer.Wait(1);
    m_view.showSummary(SummaryKind::Round);
    if (m_state.RoundNumber == m_shared.NumRounds)
        EndSet();
    else
        afterShot(&Battle::StartRound);
}

void Battle::EndSet() {
    m_shared.SetOver = true;
    m_observer.setEnded(m_shared);
    m_view.showCursor(BattleCursor::Hourglass);
    m_ports.pacer.Wait(1);
    m_view.showCursor(BattleCursor::Normal);
    m_view.showSummary(SummaryKind::Set);
    m_view.closeBattle();
}

void Battle::readRules() {
    m_commands.give(Deed::ReadRules, [this] {
        setAside();
        m_view.showRules();
        takeUp();
    });
}

/// The player is busy with something else over the battle.
void Battle::setAside() {
    m_ambientClock.stopTimers();
    if (!m_isWatched) m_state.phase = Phase::Asking;  // and nobody is asked
}

void Battle::takeUp() {
    m_state.phase = playersPhase();
    m_desk.markActivity();
    m_ambientClock.startTimers();
}

void Battle::cmdQuit_Click() {
    m_commands.give(Deed::Quit, [this] { leave(); });
}

void Battle::leave() {
    m_desk.markActivity();
    setAside();
    if (!confirmsLeaving(m_state, m_shared, m_ports.boxes)) return takeUp();
    offerToKeepGameSpeed(m_state, m_shared, m_ports.boxes, m_ports.settings);
    // Quirk "saved by leaving": a set that is played to its end saves nothing.
    saveOptions(m_state, m_ports.settings);
    m_state.phase = Phase::Left;
    m_observer.setLeft();
    m_view.holdInput();
    m_ports.pacer.yieldToEvents();
    m_view.closeBattle();
}

}  // namespace skylob
