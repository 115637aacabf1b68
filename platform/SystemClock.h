#pragma once

#include "base/Clock.h"

namespace skylob {

/// The machine's clock in the user's time zone.
class SystemClock final : public Clock {
  public:
    DateTime now() const override;
};

}  // namespace skylob
