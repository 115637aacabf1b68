#pragma once

#include "base/Pacer.h"
#include "platform/CountedWait.h"
#include "platform/qt/QtHeldInput.h"

namespace skylob {

/// Spends time on the user-interface thread. There must be a QApplication.
class QtPacer final : public Pacer {
  public:
    void startPacing() override;
    void countedWait(std::int32_t counts) override;
    void Wait(float seconds) override;
    void waitWatched(float seconds, const Watch& watch) override;
    void yieldToEvents() override;

  private:
    CountedWait m_countedWait;
    QtHeldInput m_heldInput;
};

}  // namespace skylob
