#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "base/MessageBoxes.h"
#include "base/RandomInt.h"
#include "base/SoundPlayer.h"
#include "base/StringTable.h"
#include "base/SummaryKind.h"
#include "base/basSkylob.h"
#include "players/PlayerFile.h"

namespace skylob {

struct SummaryPorts {
    const Clock& clock;
    RandomSource& random;
    SoundPlayer& sounds;
    MessageBoxes& boxes;
    const StringTable& strings;
    PlayerFile& file;
};

/// The rules of the screen that follows every round, and once more every set: it names the
/// winner, has the computer comment, and records a finished set.
class Summary {
  public:
    /// `shared` and everything in `ports` must outlive the summary.
    Summary(basSkylob& shared, SummaryKind kind, const SummaryPorts& ports);

    /// Decides a finished set, makes the sound that goes with it, and draws the remark. To be
    /// called once, before the texts below are asked for.
    void Form_Activate();

    /// "Ann wins this Round!"
    std::string heading() const;
    /// Why the round ended, or how the winner of the set was found.
    std::string reason() const;

    const std::string& labelComputerSays() const { return m_labelComputerSays; }

    /// The present date and time.
    std::string labelDateTime() const;

    /// Records a finished set in the player list and says so. Throws FileError.
    void cmdOkay_Click();

  private:
    basSkylob& m_shared;
    SummaryKind m_kind;
    SummaryPorts m_ports;
    std::string m_labelComputerSays;
};

/// Why the round that `shared` tells of is over, in a sentence.
std::string whyRoundIsOver(const basSkylob& shared);

/// Who has won the set that `shared` tells of, and by what scores, in a sentence.
std::string whoWonTheSet(const basSkylob& shared);

/// As in "11/21/26 - 9:41pm", the same in every country.
std::string dateTimeText(DateTime time);

/// The sound for a round against the computer that ended at this second, 0..59, of a minute.
std::optional<std::string_view> roundSound(const basSkylob& shared, int second);

}  // namespace skylob
