#pragma once

#include "base/Pacer.h"
#include "platform/CountedWait.h"

namespace skylob {

/// Spends time on the user-interface thread.
class QtPacer final : public Pacer {
  public:
    void startPacing() override;
    void countedWait(std::int32_t counts) override;
    void Wait(float seconds) override;
    void yieldToEvents() override;

  private:
    CountedWait m_countedWait;
};

}  // namespace skylob
