#pragma once

namespace skylob {

/// Opacities of windows, in whole steps.
inline constexpr int kInvisible = 0, kOpaque = 255;

/// How much of it a screen gains or loses at each tick, and the title page when it goes.
inline constexpr int kFadeStep = 20, kSlowFadeStep = 10;

enum class AfterFade { Stay, Close };

/// One fade of one screen, counted by the ticks of its timer.
class Fade {
  public:
    /// Begins a fade between two opacities, 0..255, by `step` of at least 1 a tick.
    void StartFade(int start, int end, int step, AfterFade after);

    /// From StartFade() until the tick that reaches the end.
    bool isActive() const { return m_active; }
    AfterFade after() const { return m_after; }

    /// Takes a step; the last one ends exactly at the end. Returns the opacity to show now.
    int tick();

  private:
    int m_current = kOpaque, m_end = kOpaque, m_step = kFadeStep;
    AfterFade m_after = AfterFade::Stay;
    bool m_active = false;
};

}  // namespace skylob
