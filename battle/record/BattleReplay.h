#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "battle/Battle.h"
#include "battle/record/BattleScribe.h"

namespace skylob {

/// Has a recorded set played again: sets the generator to where it was before each of the rules'
/// draws, gives the player's commands, and compares what comes of them with the recording.
///
/// The battle draws from `random`, has the replay as its observer, is started with
/// startOf(record) and optionsOf(record), and is only watched (Battle::watch).
class BattleReplay final : public BattleScribe {
  public:
    /// Both must outlive the replay; `random` has the record's seed.
    BattleReplay(const BattleRecord& record, SeededRandom& random)
        : BattleScribe{random}, m_record{record} {}

    /// Where the set that is played and the recording part.
    struct Difference {
        std::size_t line = 0;  ///< in the recording's text, from 1 on
        std::string recorded, played;
    };
    const std::optional<Difference>& difference() const { return m_difference; }

    /// The recording has been played to its end, or to a difference.
    bool isOver() const { return m_difference || m_next == m_record.lines.size(); }

    /// The recorded end is that the set was left, and it comes next.
    bool wasLeftHere() const;

    /// Aims as the recorded player does next, if that is a shot.
    void aim(Battle& battle) const;

    /// Gives the recorded player's next command: a shot, a click on a box, leaving.
    void act(Battle& battle);

    void rulesDraw() override;

  private:
    const RecordLine& next() const { return m_record.lines[m_next]; }
    void begin(const RecordHeader&) override {}
    void add(const RecordLine& line) override;
    void giveCommand(Battle& battle) const;
    void differ(const std::string& played);

    const BattleRecord& m_record;
    std::size_t m_next = 0;  ///< of the recording's lines
    std::optional<Difference> m_difference;
};

/// What a battle is to be started with to be the recorded one.
basSkylob startOf(const BattleRecord& record);

/// Puts the options that the recorded set began with where a battle reads them.
void putOptions(const BattleRecord& record, SettingsStore& store);

/// Plays a recorded set again, without a screen, to its end or the first difference.
std::optional<BattleReplay::Difference> replayWithoutScreen(const BattleRecord& record);

}  // namespace skylob
