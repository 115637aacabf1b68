#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace skylob {

/// What a RIFF/WAVE file holds, read without copying it: valid as long as the file's bytes.
struct WaveImage {
    static constexpr int kPcm = 1, kMpegLayer3 = 85;

    int formatTag = 0, channels = 0;
    int rate = 0;                              ///< samples a second
    int bitsPerSample = 0;                     ///< 0 where the format has none
    int blockAlign = 0;                        ///< bytes of one sample of all channels
    std::optional<std::uint32_t> factSamples;  ///< the length that a `fact` chunk states
    std::span<const std::byte> data;           ///< the samples, or the compressed stream
};

/// Reads a wave file; nothing when the bytes are none, are cut short or lack a format or data.
std::optional<WaveImage> readWaveImage(std::span<const std::byte> file);

}  // namespace skylob
