#pragma once

#include <memory>
#include <optional>

#include "battle/BattleState.h"

namespace skylob::arena {

/// Somebody who plays side 1 by a fixed rule, without any chance.
class Player {
  public:
    virtual ~Player() = default;

    /// A round begins on this field.
    virtual void beginRound(const Battlefield&) {}

    virtual Aim nextAim() = 0;

    /// Where its shell came down: columns past the target, negative where it fell short.
    virtual void seeLanding([[maybe_unused]] int beyond) {}
};

/// Fires every time, straight up into its own half, and hits nobody.
class PassivePlayer final : public Player {
  public:
    Aim nextAim() override { return {kSpeedRange.minimum, 75}; }
};

/// Does what people do: fires over the mountain, adds or takes off a fixed step of speed until it
/// has one shell short of the target and one past it, and then aims between those two, nearer to
/// the better one. It keeps its angle for the round and looks at nothing but its own landings.
class CorrectingPlayer final : public Player {
  public:
    void beginRound(const Battlefield& field) override;
    Aim nextAim() override { return m_aim; }
    void seeLanding(int beyond) override;

  private:
    struct Landing {
        int speed, beyond;
    };

    Aim m_aim;
    std::optional<Landing> m_short, m_past;
};

}  // namespace skylob::arena
