#pragma once

#include "base/Clock.h"
#include "battle/ControlDesk.h"
#include "battle/LightningStorm.h"
#include "battle/Meteors.h"
#include "battle/Sky.h"

namespace skylob {

/// When meteors and storms come: the two timers, which the screen runs while the panel says so, and
/// the chance that each of their ticks has once the player has left the controls alone.
class AmbientClock {
  public:
    /// All of these must outlive the clock.
    AmbientClock(const Sky& sky, const Clock& clock, ControlDesk& desk, Meteors& meteors,
                 LightningStorm& storm);

    /// Every 333 ms and every 500 ms. One tick in twenty brings a meteor, one in ten a storm, which
    /// runs to its end, or to the command that interrupts it, inside the call. A tick that finds
    /// the battle busy, or used within the last 12 whole seconds, does nothing.
    void timerMeteors_Timer();
    void timerLightning_Timer();

    /// Runs or stops the timers whose boxes are ticked, and no other.
    void startTimers();
    void stopTimers();

  private:
    bool isIdle() const;
    void meteor();
    void storm();

    Sky m_sky;
    const Clock& m_clock;
    ControlDesk& m_desk;
    Meteors& m_meteors;
    LightningStorm& m_storm;
};

}  // namespace skylob
