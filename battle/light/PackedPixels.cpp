#include "battle/light/PackedPixels.h"

#include <algorithm>
#include <array>

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
    std::array<std::uint32_t, kBlock + kAtOnce> block;
    while (!to.empty()) {
        const std::size_t skipped = first % kBlock, count = std::min(kBlock - skipped, to.size());
        unpack(first / kBlock, skipped + count, block.data());
        std::copy_n(block.data() + skipped, count, to.data());
        first += count;
        to = to.subspan(count);
    }
}

/// The block's first `count` pixels. There must be room for kAtOnce more: the runs are short, and
/// to write too much is quicker than to ask how much.
void PackedPixels::unpack(std::size_t block, std::size_t count, std::uint32_t* to) const {
    const std::uint32_t* run = m_runs.data() + m_starts[block];
    for (std::size_t done = 0; done < count; ++run) {
        const std::size_t end = done + *run / kOneMore + 1;
        for (std::size_t at = done; at < end; at += kAtOnce)
            std::fill_n(to + at, kAtOnce, *run | kAlpha);
        done = end;
    }
}

}  // namespace skylob
