#include "battle/HeadlessBattle.h"

#include <utility>

namespace skylob {

void HeadlessView::runQueue() {
    while (!m_tasks.empty()) {
        const auto task = std::exchange(m_tasks.front(), {});
        m_tasks.pop();
        task();
    }
}

HeadlessBattle::HeadlessBattle(basSkylob shared, std::uint64_t seed, MemorySettings settings,
                               BattleObserver* observer)
    : m_shared{std::move(shared)},
      m_random{seed},
      m_settings{std::move(settings)},
      m_battle{
          m_shared, {m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings, observer}, m_view} {
    m_battle.Form_Activate();
    m_view.runQueue();
}

void HeadlessBattle::shoot(int speed, int angle) {
    m_battle.aims().setSpeed(shooter(), speed);
    m_battle.aims().setAngle(shooter(), angle);
    m_battle.cmdShoot_Click();
    m_view.runQueue();
}

}  // namespace skylob
