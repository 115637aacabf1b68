#pragma once

#include <cstdint>
#include <functional>

namespace skylob {

/// How the game spends time. Everything runs on the one user-interface thread, so each of these
/// blocks its caller; only yieldToEvents lets the user in.
class Pacer {
  public:
    virtual ~Pacer() = default;

    /// Marks the start of an animation: the first counted wait after it is measured from here.
    virtual void startPacing() = 0;

    /// Counts from 1 to `counts` (at least 0), at no more than two counts a nanosecond. The time
    /// runs from the end of the previous counted wait, so that what was drawn since then lies
    /// inside the wait and does not lengthen it.
    virtual void countedWait(std::int32_t counts) = 0;

    /// Sleeps for `seconds` (0 or more), rounded to whole milliseconds, halves to even.
    virtual void Wait(float seconds) = 0;

    /// Told of a pause under way: the milliseconds that are left of it, 1 or more.
    using Watch = std::function<void(std::int32_t millisecondsLeft)>;

    /// Sleeps exactly as long as Wait(seconds), but in slices of at most 100 ms, before each of
    /// which the windows of the program are served, painting, sizes and what the window manager
    /// wants, a window closed included, and `watch` is called. Input keeps until the next
    /// yieldToEvents(), the ticks of timers until events are served again, each once at most.
    virtual void waitWatched(float seconds, const Watch& watch) = 0;

    /// Lets pending window events be handled, once.
    virtual void yieldToEvents() = 0;
};

/// The whole milliseconds that Wait(seconds) sleeps.
std::int32_t waitMilliseconds(float seconds);

}  // namespace skylob
