#pragma once

#include "battle/HeadlessBattle.h"
#include "battle/record/BattleRecorder.h"
#include "fuzz/Input.h"
#include "tests/support/Fakes.h"

namespace skylob::fuzz {

/// A screen that knows whether its player's hand reaches the bars.
struct HoldingView : HeadlessView {
    void holdInput() override { isHeld = true; }
    void releaseInput() override { isHeld = false; }

    bool isHeld = false;
};

/// A set that is written down, and to which the input gives commands at any time: between the
/// shots, and whenever the battle serves events.
class PlayedBattle : InstantPacer, AgreeingBoxes {
  public:
    explicit PlayedBattle(Input& input)
        : m_input{input},
          m_shared{startOf(input)},
          m_random{static_cast<std::uint64_t>(input.byte())},
          m_battle{m_shared,
                   {m_random, m_clock, *this, m_sounds, *this, m_settings, &m_recorder},
                   m_view} {
        for (const char* box : {"Meteors", "Lightning", "Wind"}) {
            m_settings.save(std::string{box} + "Setting", input.flag() ? "1" : "0");
        }
        m_battle.Form_Activate();
        m_view.runQueue();
    }

    /// Gives the input's next command from outside, and runs what it queued.
    void command() {
        give();
        m_view.runQueue();
    }
    void leave() {
        m_battle.cmdQuit_Click();
        m_view.runQueue();
    }

    bool isClosed() const { return m_view.isClosed(); }
    const Battle& battle() const { return m_battle; }
    const std::string& recorded() const { return m_recorded; }

  private:
    static basSkylob startOf(Input& input) {
        basSkylob shared;
        shared.PlayerName = {"Ann", input.flag() ? std::string{kComputerName} : "Bob"};
        shared.SkillLevel = input.from(kGoodSkill, kPoorSkill);
        shared.NumRounds = input.from(1, 5);
        return shared;
    }

    void yieldToEvents() override {
        const bool mayEnd = !m_battle.effectIsRunning();
        const std::size_t shots = m_battle.shots().size();
        give();
        require(mayEnd || (shots == m_battle.shots().size() && !isClosed()),
                "a shot and leaving wait for the end of a meteor or a storm");
    }
    /// Windows are served in a pause, and one may be closed.
    void waitWatched(float, const Watch& watch) override {
        watch(1);
        if (!m_input.isOver() && m_input.byte() == 'q') m_battle.cmdQuit_Click();
    }
    BoxAnswer show(const MessageBox& box) override {
        if (box.buttons == BoxButtons::Ok) return BoxAnswer::Ok;
        return m_input.isOver() || m_input.flag() ? BoxAnswer::Yes : BoxAnswer::No;
    }

    void give();
    void shoot();
    void waitForTheSky();

    Input& m_input;
    basSkylob m_shared;
    SeededRandom m_random;
    test::HandSetClock m_clock;
    SilentSounds m_sounds;
    MemorySettings m_settings;
    HoldingView m_view;
    std::string m_recorded;
    BattleRecorder m_recorder{m_random,
                              [this](const std::string& text, bool) { m_recorded += text; }};
    Battle m_battle;
};

inline void PlayedBattle::give() {
    if (m_input.isOver()) return;
    BattleOptions& options = m_battle.options();
    switch (m_input.byte()) {
        case 's':
            return shoot();
        case 't':
            return waitForTheSky();
        case 'S':
            return options.chkSound_Click(m_input.flag());
        case 'T':
            return options.chkTrajectory_Click(m_input.flag());
        case 'M':
            return options.chkMeteors_Click(m_input.flag());
        case 'L':
            return options.chkLightning_Click(m_input.flag());
        case 'W':
            return options.chkWind_Click(m_input.flag());
        case 'g':
            return options.setGameSpeed(m_input.byte());
        case 'r':
            return m_battle.readRules();
        case 'q':
            return m_battle.cmdQuit_Click();
        default:
            return;
    }
}

/// A click may come while input is held, a moment after its key; a bar is not moved then.
inline void PlayedBattle::shoot() {
    const int side = m_battle.state().Shooter;
    if (m_battle.panel().side[side].enabled && !m_view.isHeld) {
        m_battle.aims().setSpeed(side, 100 + 4 * m_input.byte());
        m_battle.aims().setAngle(side, m_input.byte());
    }
    m_battle.cmdShoot_Click();
}

/// Until it has had a good chance of a meteor and a storm.
inline void PlayedBattle::waitForTheSky() {
    m_clock.time += std::chrono::hours{1};
    for (int tick = 0; tick < 30; ++tick) {
        if (m_battle.panel().timerMeteors) m_battle.timerMeteors_Timer();
        if (m_battle.panel().timerLightning) m_battle.timerLightning_Timer();
    }
}

}  // namespace skylob::fuzz
