#pragma once

#include <chrono>
#include <cstdint>

namespace skylob {

/// The counting loop behind Pacer::countedWait, with a steady clock that stretches it so that
/// one count lasts half a nanosecond on every machine that is able to count that fast. It spins;
/// it never sleeps and never serves events.
class CountedWait {
  public:
    /// The next wait is measured from now.
    void start();

    /// Counts, then spins until `counts` half nanoseconds have gone by since the previous wait
    /// ended or start() was called. A wait that is already late ends after its counting and
    /// leaves no debt to the next one.
    void run(std::int32_t counts);

  private:
    std::chrono::steady_clock::time_point m_previousEnd{};
};

}  // namespace skylob
