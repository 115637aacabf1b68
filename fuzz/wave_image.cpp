// Wave files. What is read lies within the file, reads no other after the file is written anew from
// it, and a file that is cut short within its samples is refused.
#include <span>

#include "fuzz/Input.h"
#include "platform/WaveImage.h"

using namespace skylob;
using fuzz::require;

static std::string number(std::size_t value, int bytes) {
    std::string text;
    for (; bytes > 0; --bytes, value >>= 8) text += static_cast<char>(value & 0xFF);
    return text;
}

static std::string written(const WaveImage& image) {
    const auto field = [](int value, int bytes) {
        return number(static_cast<std::uint32_t>(value), bytes);
    };
    std::string file = "RIFF" + number(0, 4) + "WAVEfmt " + number(16, 4);
    file += field(image.formatTag, 2) + field(image.channels, 2) + field(image.rate, 4);
    file += number(0, 4) + field(image.blockAlign, 2) + field(image.bitsPerSample, 2);
    if (image.factSamples) file += "fact" + number(4, 4) + number(*image.factSamples, 4);
    file += "data" + number(image.data.size(), 4);
    return file.append(reinterpret_cast<const char*>(image.data.data()), image.data.size());
}

static std::optional<WaveImage> readFrom(std::string_view file) {
    return readWaveImage(std::as_bytes(std::span{file.data(), file.size()}));
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view file = fuzz::Input{bytes, size}.rest();
    const auto image = readFrom(file);
    if (!image) return 0;
    const auto* const first = reinterpret_cast<const char*>(image->data.data());
    require(first >= file.data(), "samples begin within the file");
    const auto start = static_cast<std::size_t>(first - file.data());
    require(start + image->data.size() <= file.size(), "samples end within the file");

    const std::string anew = written(*image);
    const auto again = readFrom(anew);
    require(again && written(*again) == anew, "what was read is read again");
    if (image->data.empty()) return 0;
    require(!readFrom(std::string_view{anew}.substr(0, anew.size() - 1)),
            "no sample may be missing");
    return 0;
}
