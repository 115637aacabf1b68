#include "battle/AmbientClock.h"

namespace skylob {

AmbientClock::AmbientClock(const Sky& sky, const Clock& clock, ControlDesk& desk, Meteors& meteors,
                           LightningStorm& storm)
    : m_sky{sky}, m_clock{clock}, m_desk{desk}, m_meteors{meteors}, m_storm{storm} {
}

void AmbientClock::timerMeteors_Timer() {
    if (!isIdle()) return;
    if (RandomInt(m_sky.random, 1, 20) == 1) m_sky.effect.run([this] { meteor(); });
}

void AmbientClock::timerLightning_Timer() {
    if (!isIdle()) return;
    if (RandomInt(m_sky.random, 1, 10) == 1) m_sky.effect.run([this] { storm(); });
}

bool AmbientClock::isIdle() const {
    using namespace std::chrono;
    const BattleState& state = m_sky.state;
    const bool underWay = m_sky.effect.isUnderWay();
    if (verdictOn(Deed::BeginEffect, state.phase, underWay) != Verdict::Now) return false;
    return floor<seconds>(m_clock.now() - state.TurnStartTime) >= 12s;
}

void AmbientClock::startTimers() {
    // Quirk "crossed timers": those whose boxes are not ticked stay as they are, here and below.
    BattleState& state = m_sky.state;
    if (state.chkMeteors) state.timerMeteors = true;
    if (state.chkLightning) state.timerLightning = true;
    m_desk.show();
}

void AmbientClock::stopTimers() {
    BattleState& state = m_sky.state;
    if (state.chkMeteors) state.timerMeteors = false;
    if (state.chkLightning) state.timerLightning = false;
    m_desk.show();
}

void AmbientClock::meteor() {
    BattleState& state = m_sky.state;
    if (state.chkLightning) state.timerLightning = false;
    m_desk.show();
    m_meteors.fly();
    if (state.chkLightning) state.timerLightning = true;
    m_desk.show();
}

void AmbientClock::storm() {
    // It stops its own timer in any case, and the meteors' if their box is ticked.
    BattleState& state = m_sky.state;
    if (state.chkMeteors) state.timerMeteors = false;
    state.timerLightning = false;
    m_desk.show();
    m_storm.rage();
    // Quirk "storm starts meteors": their timer runs then, even if it stood still before.
    if (state.chkMeteors) state.timerMeteors = true;
    state.timerLightning = true;
    m_desk.show();
}

}  // namespace skylob
