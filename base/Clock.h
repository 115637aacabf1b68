#pragma once

#include <chrono>

namespace skylob {

/// A date and time on the user's own clock and calendar.
using DateTime = std::chrono::local_time<std::chrono::milliseconds>;

/// The seconds of the time, 0..59.
int secondsOf(DateTime time);

class Clock {
  public:
    virtual ~Clock() = default;

    /// The current local date and time.
    virtual DateTime now() const = 0;
};

}  // namespace skylob
