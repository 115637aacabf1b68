#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace skylob {

/// The opaque pixels of a picture, one after the other, in little memory: neighbours of one colour
/// are stored once. To copy a part of it costs hardly more than from the picture itself.
class PackedPixels {
  public:
    bool isEmpty() const { return m_starts.empty(); }

    /// Puts pixels, 0xFFRRGGBB, behind those that are there.
    void append(std::span<const std::uint32_t> pixels);

    /// Copies as many as there is room for, from that one on; all of them must be there.
    void copy(std::size_t first, std::span<std::uint32_t> to) const;

  private:
    void copyBlock(std::size_t block, std::uint32_t* to) const;
    void copyPart(std::size_t block, std::size_t skipped, std::span<std::uint32_t> to) const;

    std::size_t m_size = 0;
    std::vector<std::uint32_t> m_runs;    ///< a colour, and in place of alpha how many follow
    std::vector<std::uint32_t> m_starts;  ///< where in it each block of pixels begins
};

}  // namespace skylob
