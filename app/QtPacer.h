#pragma once

#include "app/CountedWait.h"
#include "app/Pacer.h"

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
