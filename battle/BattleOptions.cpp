#include "battle/BattleOptions.h"

#include <cstdlib>

namespace skylob {

namespace {
constexpr int kStrongestWind = 39, kTooWeak = 5;
}

BattleOptions::BattleOptions(basSkylob& shared, BattleState& state, ControlDesk& desk,
                             Commands& commands, RandomSource& random, Pacer& pacer,
                             BattleObserver& observer)
    : m_shared{shared},
      m_state{state},
      m_desk{desk},
      m_commands{commands},
      m_random{random},
      m_pacer{pacer},
      m_observer{observer} {
}

void BattleOptions::setGameSpeed(int value) {
    const int speed = kGameSpeedRange.held(value);
    if (speed == gameSpeedOnBar(m_state, m_shared)) return;
    m_shared.GameSpeed = speed;
    m_state.barShowsGameSpeed = true;
    m_desk.barMoved();
}

void BattleOptions::chkSound_Click(bool ticked) {
    carryOut(Deed::ChangeOption, [this, ticked] {
        m_state.SoundOn = ticked;
        m_desk.changed();
        tellOf(Box::Sound);
    });
}

void BattleOptions::chkTrajectory_Click(bool ticked) {
    carryOut(Deed::ChangeOption, [this, ticked] {
        m_state.ShowTrajectory = ticked;
        m_desk.changed();
        tellOf(Box::Trajectory);
    });
}

void BattleOptions::chkMeteors_Click(bool ticked) {
    carryOut(Deed::ClickEffectBox, [this, ticked] {
        m_state.chkMeteors = ticked;
        // Quirk "crossed timers": the meteors follow the lightning box, as it stands when this one
        // is clicked.
        m_state.timerMeteors = m_state.chkLightning;
        m_desk.changed();
        tellOf(Box::Meteors);
        m_pacer.yieldToEvents();
    });
}

void BattleOptions::chkLightning_Click(bool ticked) {
    carryOut(Deed::ClickEffectBox, [this, ticked] {
        m_state.chkLightning = ticked;
        m_state.timerLightning = ticked;
        m_desk.changed();
        tellOf(Box::Lightning);
        m_pacer.yieldToEvents();
    });
}

void BattleOptions::chkWind_Click(bool ticked) {
    carryOut(Deed::ChangeOption, [this, ticked] {
        m_state.chkWind = ticked;
        if (ticked) {
            drawWind();
        } else {
            m_state.Wind = 0;
            m_desk.changed();
        }
        tellOf(Box::Wind);
    });
}

void BattleOptions::drawWind() {
    do {
        m_state.Wind = RandomInt(m_random, -kStrongestWind, kStrongestWind);
    } while (std::abs(m_state.Wind) <= kTooWeak);
    m_desk.changed();
}

void BattleOptions::carryOut(Deed deed, std::function<void()> change) {
    const auto watched = [this, change = std::move(change)] {
        m_observer.rulesDraw();
        change();
    };
    if (!m_commands.give(deed, watched)) m_desk.showAgain();
}

void BattleOptions::tellOf(Box box) {
    m_observer.boxClicked(box, m_state);
}

}  // namespace skylob
