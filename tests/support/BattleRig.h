#pragma once

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
    void queue(std::function<void()> task) override {
        log.push_back("queue");
        HeadlessView::queue(std::move(task));
    }
    void showSummary(SummaryKind kind) override {
        log.push_back(kind == SummaryKind::Round ? "summary Round" : "summary Set");
    }
    void showCursor(BattleCursor cursor) override {
        if (cursor == BattleCursor::Hourglass) log.push_back("hourglass");
    }
    void closeBattle() override {
        log.push_back("close");
        HeadlessView::closeBattle();
    }

    Log& log;
    std::function<void()> onShowField;
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
    void fire(const Aim& aim) {
        aims().setSpeed(state().Shooter, aim.speed);
        aims().setAngle(state().Shooter, aim.angle);
        battle.cmdShoot_Click();
    }

    Aims& aims() { return battle.aims(); }
    BattleOptions& options() { return battle.options(); }
    const BattlePanel& panel() const { return battle.panel(); }
    const BattleState& state() const { return battle.state(); }
    bool bothTimersRun() const { return panel().timerMeteors && panel().timerLightning; }

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
