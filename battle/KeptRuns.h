#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace skylob {

/// What lies under what has been drawn upon a picture for the moment. The picture, row after row,
/// is cut into short runs of pixels, and only those that have been drawn upon are kept as they
/// were: a trail takes some kilobytes, where a second picture would take megabytes. A run that is
/// not kept is still in the picture itself. Places are counted in pixels from the picture's first
/// one.
class KeptRuns {
  public:
    static constexpr std::size_t kRun = 16;

    struct Run {
        std::size_t first;
        std::array<std::uint32_t, kRun> pixels;  ///< beyond the picture's end: anything
    };

    /// Keeps nothing, of a picture of so many pixels from now on.
    void resize(std::size_t pictureSize);

    /// Keeps nothing.
    void forget();

    /// Keeps the runs that hold the pixels there, except for those that it keeps already. To be
    /// called before these are drawn upon.
    void keep(std::span<const std::uint32_t> picture, std::size_t first, std::size_t count);

    /// Draws upon what is kept there, and nowhere else.
    void fill(std::size_t first, std::size_t count, std::uint32_t value);

    /// The kept pixel; null where none is kept.
    const std::uint32_t* find(std::size_t at) const {
        const std::uint32_t place = m_places[at / kRun];
        return place == 0 ? nullptr : &m_runs[place - 1].pixels[at % kRun];
    }

    /// All that is kept, in no order.
    std::span<Run> runs() { return m_runs; }

    /// Lays all that is kept back onto the picture, and keeps nothing.
    void putBack(std::span<std::uint32_t> picture);

  private:
    std::vector<Run> m_runs;
    std::vector<std::uint32_t> m_places;  ///< of each run of the picture, in m_runs from 1; 0: none
};

}  // namespace skylob
