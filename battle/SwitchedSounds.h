#pragma once

#include "base/SoundPlayer.h"
#include "battle/BattleState.h"

namespace skylob {

/// The battle's sounds, heard while the sound option is on. Nobody else looks at the option.
class SwitchedSounds : public SoundPlayer {
  public:
    /// Both must outlive the sounds.
    SwitchedSounds(SoundPlayer& player, const BattleState& state)
        : m_player{player}, m_state{state} {}

    /// For what is only to happen where a sound will be heard.
    bool areOn() const { return m_state.SoundOn; }

    void PlaySound(std::string_view name) override {
        if (areOn()) m_player.PlaySound(name);
    }

  private:
    SoundPlayer& m_player;
    const BattleState& m_state;
};

}  // namespace skylob
