#include "platform/CountedWait.h"

namespace skylob {

namespace {

void countTo(std::int32_t counts) {
    // The empty statement is opaque to the optimiser, which must therefore keep every turn.
    for (std::int32_t count = 1; count <= counts; ++count) asm volatile("");
}

std::chrono::nanoseconds nominalTime(std::int32_t counts) {
    return std::chrono::nanoseconds{counts / 2};
}

}  // namespace

void CountedWait::start() {
    m_previousEnd = std::chrono::steady_clock::now();
}

void CountedWait::run(std::int32_t counts) {
    const auto deadline = m_previousEnd + nominalTime(counts);
    countTo(counts);
    auto now = std::chrono::steady_clock::now();
    while (now < deadline) now = std::chrono::steady_clock::now();
    m_previousEnd = now;
}

}  // namespace skylob
