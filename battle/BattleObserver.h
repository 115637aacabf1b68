#pragma once

#include "base/basSkylob.h"
#include "battle/BattleState.h"
#include "battle/Gunnery.h"
#include "battle/ShotReport.h"

namespace skylob {

/// Is told what a set is made of, as it happens: for whoever counts it, writes it down or compares
/// it. By itself it does nothing; the rules never ask it anything.
class BattleObserver {
  public:
    virtual ~BattleObserver() = default;

    /// The options are as they are at the start; the first round begins next.
    virtual void setBegins(const basSkylob&, const BattleState&) {}

    /// Chance is drawn next for what the following call tells of. In between nothing else draws.
    virtual void rulesDraw() {}

    /// The battlefield is made, and the shooter and the wind are known.
    virtual void roundBegun(const BattleState&) {}

    /// A shell has done all it does; the men who desert after it have left.
    virtual void shotDone(const Shot&, const ShotReport&, const BattleState&) {}

    /// A side has lost the round because it had no men to shoot with.
    virtual void turnLost([[maybe_unused]] int side) {}

    /// A box has been ticked or cleared, by a click of the player whose turn it is.
    virtual void boxClicked(Box, const BattleState&) {}

    virtual void setEnded(const basSkylob&) {}
    virtual void setLeft() {}
};

}  // namespace skylob
