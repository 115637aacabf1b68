#include "battle/KeptRuns.h"

#include <algorithm>

namespace skylob {

void KeptRuns::resize(std::size_t pictureSize) {
    m_runs = {};
    m_places.assign((pictureSize + kRun - 1) / kRun, 0);
}

void KeptRuns::forget() {
    for (const Run& run : m_runs) m_places[run.first / kRun] = 0;
    m_runs.clear();
}

void KeptRuns::keep(std::span<const std::uint32_t> picture, std::size_t first, std::size_t count) {
    for (std::size_t at = first - first % kRun; at < first + count; at += kRun) {
        std::uint32_t& place = m_places[at / kRun];
        if (place != 0) continue;
        Run& run = m_runs.emplace_back(Run{at, {}});
        std::copy_n(picture.data() + at, std::min(kRun, picture.size() - at), run.pixels.data());
        place = static_cast<std::uint32_t>(m_runs.size());
    }
}

void KeptRuns::fill(std::size_t first, std::size_t count, std::uint32_t value) {
    if (m_runs.empty()) return;
    const std::size_t end = first + count;
    for (std::size_t at = first; at < end; at += kRun - at % kRun) {
        const std::uint32_t place = m_places[at / kRun];
        if (place == 0) continue;
        std::fill_n(m_runs[place - 1].pixels.data() + at % kRun,
                    std::min(kRun - at % kRun, end - at), value);
    }
}

void KeptRuns::putBack(std::span<std::uint32_t> picture) {
    for (const auto& [first, pixels] : m_runs)
        std::copy_n(pixels.data(), std::min(kRun, picture.size() - first), picture.data() + first);
    forget();
}

}  // namespace skylob
