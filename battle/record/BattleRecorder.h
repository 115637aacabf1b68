#pragma once

#include <functional>
#include <string>

#include "battle/record/BattleScribe.h"

namespace skylob {

/// Writes sets down as they are played.
class BattleRecorder final : public BattleScribe {
  public:
    /// Takes the text, some lines at a time. `startsSet`: what came before is of another set.
    using Paper = std::function<void(const std::string& text, bool startsSet)>;

    BattleRecorder(SeededRandom& random, Paper paper)
        : BattleScribe{random}, m_paper{std::move(paper)} {}

  private:
    void begin(const RecordHeader& header) override { m_paper(textOf(header), true); }
    void add(const RecordLine& line) override { m_paper(textOf(line), false); }

    Paper m_paper;
};

}  // namespace skylob
