#pragma once

#include <sstream>

#include "battle/HeadlessBattle.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

struct RecordingView : HeadlessView {
    explicit RecordingView(Log& events) : log{events} {}

    void showField() override {
        if (onShowField) onShowField();
    }
    void showPanel(const BattlePanel&) override { ++panelsShown; }
    int displayWidth() const override { return width; }
    void holdInput() override { inputHeld = true; }
    void releaseInput() override {
        inputHeld = false;
        log.push_back("release input");
    }
    void endStorm() override { reports.push_back("over"); }
    void showReport(const std::string& report) override { reports.push_back(report); }
    void queue(std::function<void()> task) override {
        log.push_back("queue");
        HeadlessView::queue(std::move(task));
    }
    void showSummary(SummaryKind kind) override {
        log.push_back(kind == SummaryKind::Round ? "summary Round" : "summary Set");
    }
    void showRules() override {
        log.push_back("rules");
        if (onShowRules) onShowRules();
    }
    void showCursor(BattleCursor cursor) override {
        if (cursor == BattleCursor::Hourglass) log.push_back("hourglass");
    }
    void closeBattle() override {
        log.push_back("close");
        HeadlessView::closeBattle();
    }

    Log& log;
    std::function<void()> onShowField, onShowRules;
    Log reports;
    bool inputHeld = false;
    int width = 801, panelsShown = 0;
};

/// A battle between "Ann" and "Bob" (or the computer) with every port in the test's hands.
/// Chance is r = 0.5 unless the test scripts it. That makes, in every round, a field with
/// level ground of height 105 up to column 325, a mountain with its top of 720 at 550, ground of
/// 28 from column 725 to 878, and pieces in columns 163 and 863; a deserting side loses 8 men.
struct BattleRig {
    explicit BattleRig(std::string opponent = "Bob", int rounds = 5) {
        shared.PlayerName = {"Ann", std::move(opponent)};
        shared.NumRounds = rounds;
        settings.save("SoundSetting", "0");
        settings.save("GameSpeed", "99");
    }

    void start() { battle.Form_Activate(); }

    /// Aims for the side whose turn it is, fires, and runs what that queued.
    void shoot(const Aim& aim) {
        fire(aim);
        view.runQueue();
    }
    void fire(const Aim& at) {
        aim(state().Shooter, at);
        battle.cmdShoot_Click();
    }
    void aim(int side, const Aim& at) {
        aims().setSpeed(side, at.speed);
        aims().setAngle(side, at.angle);
    }

    Aims& aims() { return battle.aims(); }
    BattleOptions& options() { return battle.options(); }
    const BattlePanel& panel() const { return battle.panel(); }
    const BattleState& state() const { return battle.state(); }
    /// Those that run: "ML", "M", "L" or "".
    std::string timers() const {
        return std::string(panel().timerMeteors, 'M') + std::string(panel().timerLightning, 'L');
    }
    /// The panel's boxes that are ticked, by their first letters: "STMLW".
    std::string ticked() const {
        const BattlePanel& of = panel();
        return std::string(of.chkSound, 'S') + std::string(of.chkTrajectory, 'T') +
               std::string(of.chkMeteors, 'M') + std::string(of.chkLightning, 'L') +
               std::string(of.chkWind, 'W');
    }
    std::string labels(int side) const {
        const SidePanel& of = panel().side[side];
        return of.labelSpeed + ", " + of.labelAngle + ", " + of.labelMenLeft;
    }
    /// Round and shooter; each side's men, then shots and kills of the round; total kills, wins.
    std::string tally() const {
        std::ostringstream text;
        text << state().RoundNumber << ':' << state().Shooter;
        for (const PerSide<int>& of : {state().MenLeft, shared.RoundShots, shared.RoundKills,
                                       shared.TotalKills, shared.RoundsWon})
            text << ' ' << of[1] << '-' << of[2];
        return text.str();
    }

    Log log;
    basSkylob shared;
    ScriptedRandom random{{}, 0.5};
    HandSetClock clock;
    RecordingPacer pacer{log};
    RecordingSounds sounds{log};
    QueuedBoxes boxes{log};
    MemorySettings settings;
    RecordingView view{log};
    Battle battle{shared, {random, clock, pacer, sounds, boxes, settings}, view};
};

/// A battle that waits for side 1, with nothing in its log yet.
struct StartedRig : BattleRig {
    explicit StartedRig(int rounds = 5) : BattleRig{"Bob", rounds} {
        random.script({0});
        start();
        log.clear();
    }
};

}  // namespace skylob::test
