#pragma once

#include <cstdint>

#include "base/SeededRandom.h"
#include "battle/BattleObserver.h"
#include "battle/record/BattleRecord.h"

namespace skylob {

/// Puts what happens in a set into the lines of its recording, as it happens.
class BattleScribe : public BattleObserver {
  public:
    /// `random` is the generator that the battle draws from; it must outlive the scribe.
    explicit BattleScribe(SeededRandom& random) : m_random{random} {}

    void setBegins(const basSkylob& shared, const BattleState& state) final;
    void rulesDraw() override;
    void roundBegun(const BattleState& state) final;
    void shotDone(const Shot& shot, const ShotReport& report, const BattleState& state) final;
    void turnLost(int side) final;
    void boxClicked(Box box, const BattleState& state) final;
    void setEnded(const basSkylob& shared) final;
    void setLeft() final;

  protected:
    SeededRandom& random() { return m_random; }

  private:
    virtual void begin(const RecordHeader& header) = 0;
    virtual void add(const RecordLine& line) = 0;

    SeededRandom& m_random;
    std::uint64_t m_draws = 0;  ///< before the rules last drew
};

}  // namespace skylob
