#pragma once

#include <cstdint>
#include <functional>
#include <queue>
#include <string>

#include "base/NullPorts.h"
#include "base/SeededRandom.h"
#include "battle/Battle.h"

namespace skylob {

/// A screen that nobody looks at. Its queue is run by hand.
class HeadlessView : public BattleView {
  public:
    void showField() override {}
    void showPanel(const BattlePanel&) override {}
    void showCursor(BattleCursor) override {}
    void holdInput() override {}
    void releaseInput() override {}
    void showStorm() override {}
    void endStorm() override {}
    void showReport(const std::string&) override {}
    int displayWidth() const override { return 1024; }
    void queue(std::function<void()> task) override { m_tasks.push(std::move(task)); }
    void showSummary(SummaryKind) override {}
    void showRules() override {}
    void closeBattle() override { m_closed = true; }

    /// Runs what has been queued, and what that queues, to the end.
    void runQueue();
    bool isClosed() const { return m_closed; }

  private:
    std::queue<std::function<void()>> m_tasks;
    bool m_closed = false;
};

/// A whole battle without a screen, a sound or a pause: for programs that only want the rules.
class HeadlessBattle {
  public:
    /// Starts a set of shared.NumRounds rounds between shared.PlayerName[1] and [2]. The same
    /// seed and the same shots make the same set. `settings` may bring options for the start,
    /// such as "WindSetting". The observer, if any, must outlive the object.
    HeadlessBattle(basSkylob shared, std::uint64_t seed, MemorySettings settings = {},
                   BattleObserver* observer = nullptr);

    /// True when the last round has been played.
    bool isOver() const { return m_shared.SetOver; }

    /// The side whose shot it is, never the computer's.
    int shooter() const { return m_battle.state().Shooter; }

    /// Aims for shooter() and fires; a computer's answer and the start of the next round are
    /// played before this returns. Values outside the controls' ranges are brought into them.
    void shoot(int speed, int angle);

    const Battle& battle() const { return m_battle; }

  private:
    basSkylob m_shared;
    SeededRandom m_random;
    StoppedClock m_clock;
    InstantPacer m_pacer;
    SilentSounds m_sounds;
    AgreeingBoxes m_boxes;
    MemorySettings m_settings;
    HeadlessView m_view;
    Battle m_battle;
};

}  // namespace skylob
