#include "battle/HeadlessBattle.h"

#include <utility>

namespace skylob {

std::optional<std::string> AgreeingBoxes::ask(const InputBox& box) {
    return box.entry;
}

BoxAnswer AgreeingBoxes::show(const MessageBox& box) {
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
}

std::string MemorySettings::get(std::string_view key, std::string_view fallback) const {
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::string{fallback} : found->second;
}

void MemorySettings::save(std::string_view key, std::string_view value) {
    m_values.insert_or_assign(std::string{key}, std::string{value});
}

void HeadlessView::runQueue() {
    while (!m_tasks.empty()) {
        const auto task = std::exchange(m_tasks.front(), {});
        m_tasks.pop();
        task();
    }
}

HeadlessBattle::HeadlessBattle(basSkylob shared, std::uint64_t seed, MemorySettings settings)
    : m_shared{std::move(shared)},
      m_random{seed},
      m_settings{std::move(settings)},
      m_battle{m_shared, {m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings, m_view}} {
    m_battle.Form_Activate();
    m_view.runQueue();
}

void HeadlessBattle::shoot(int speed, int angle) {
    m_battle.controls().setSpeed(shooter(), speed);
    m_battle.controls().setAngle(shooter(), angle);
    m_battle.cmdShoot_Click();
    m_view.runQueue();
}

}  // namespace skylob
