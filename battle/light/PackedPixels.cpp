#include "battle/light/PackedPixels.h"

#include <algorithm>

namespace skylob {

namespace {

// A part is found by its block: longer ones would take longer, shorter ones more memory.
constexpr std::size_t kBlock = 32;
constexpr std::size_t kAtOnce = 16;
constexpr std::uint32_t kAlpha = 0xFF000000u, kOneMore = 0x01000000u;

}  // namespace

void PackedPixels::append(std::span<const std::uint32_t> pixels) {
    for (const std::uint32_t pixel : pixels) {
        const bool beginsBlock = m_size++ % kBlock == 0;
        if (beginsBlock) m_starts.push_back(static_cast<std::uint32_t>(m_runs.size()));
        if (!beginsBlock && (m_runs.back() | kAlpha) == pixel)
            m_runs.back() += kOneMore;
        else
            m_runs.push_back(pixel & ~kAlpha);
    }
}

void PackedPixels::copy(std::size_t first, std::span<std::uint32_t> to) const {
    while (!to.empty()) {
        const std::size_t skipped = first % kBlock, count = std::min(kBlock - skipped, to.size());
        if (skipped == 0 && to.size() >= kBlock + kAtOnce)
            copyBlock(first / kBlock, to.data());
        else
            copyPart(first / kBlock, skipped, to.first(count));
        first += count;
        to = to.subspan(count);
    }
}

/// There must be room for kAtOnce pixels more: the runs are short, and to write too much is quicker
/// than to ask how much.
void PackedPixels::copyBlock(std::size_t block, std::uint32_t* to) const {
    const std::uint32_t* run = m_runs.data() + m_starts[block];
    for (std::size_t done = 0; done < kBlock; ++run) {
        const std::size_t end = done + *run / kOneMore + 1;
        for (std::size_t at = done; at < end; at += kAtOnce)
            std::fill_n(to + at, kAtOnce, *run | kAlpha);
        done = end;
    }
}

void PackedPixels::copyPart(std::size_t block, std::size_t skipped,
                            std::span<std::uint32_t> to) const {
    const std::uint32_t* run = m_runs.data() + m_starts[block];
    std::size_t end = *run / kOneMore + 1;  // of the run, in the block
    while (end <= skipped) end += *++run / kOneMore + 1;
    for (std::size_t i = 0; i < to.size(); ++i) {
        if (skipped + i == end) end += *++run / kOneMore + 1;
        to[i] = *run | kAlpha;
    }
}

}  // namespace skylob
