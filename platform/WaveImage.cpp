#include "platform/WaveImage.h"

#include <cstring>
#include <string_view>

namespace skylob {

namespace {

using Bytes = std::span<const std::byte>;

std::uint32_t littleEndian(Bytes bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;)
        value = value << 8 | std::to_integer<std::uint32_t>(bytes[at + i]);
    return value;
}

bool hasTag(Bytes bytes, std::size_t at, std::string_view tag) {
    return bytes.size() >= at + tag.size() &&
           std::memcmp(bytes.data() + at, tag.data(), tag.size()) == 0;
}

void readFormat(Bytes chunk, WaveImage& image) {
    const auto field = [chunk](std::size_t at, std::size_t size) {
        return static_cast<int>(littleEndian(chunk, at, size));
    };
    image.formatTag = field(0, 2);
    image.channels = field(2, 2);
    image.rate = field(4, 4);
    image.blockAlign = field(12, 2);
    image.bitsPerSample = field(14, 2);
}

}  // namespace

std::optional<WaveImage> readWaveImage(Bytes file) {
    constexpr std::size_t kRiffHeader = 12, kChunkHeader = 8, kFormatSize = 16;
    if (!hasTag(file, 0, "RIFF") || !hasTag(file, 8, "WAVE")) return std::nullopt;
    WaveImage image;
    bool hasFormat = false, hasData = false;
    std::size_t at = kRiffHeader;
    while (at + kChunkHeader <= file.size()) {
        const std::size_t size = littleEndian(file, at + 4, 4);
        const std::size_t start = at + kChunkHeader;
        if (size > file.size() - start) return std::nullopt;
        const Bytes chunk = file.subspan(start, size);
        if (hasTag(file, at, "fmt ") && size >= kFormatSize) {
            readFormat(chunk, image);
            hasFormat = true;
        } else if (hasTag(file, at, "fact") && size >= 4) {
            image.factSamples = littleEndian(chunk, 0, 4);
        } else if (hasTag(file, at, "data")) {
            image.data = chunk;
            hasData = true;
        }
        at = start + size + size % 2;  // chunks are padded to whole words
    }
    if (!hasFormat || !hasData) return std::nullopt;
    return image;
}

}  // namespace skylob
