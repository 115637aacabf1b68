#include <gtest/gtest.h>

#include "platform/WaveImage.h"

namespace skylob::test {

using namespace std::literals;

TEST(WaveImage, IsReadChunkByChunk) {
    const auto read = [](std::string_view text) {
        return readWaveImage(std::as_bytes(std::span{text.data(), text.size()}));
    };
    const auto header = "RIFF\x3c\0\0\0WAVE"s;
    const auto format = "fmt \x10\0\0\0\x01\0\x01\0\x11\x2b\0\0\x11\x2b\0\0\x01\0\x08\0"s;
    const auto odd = "note\x03\0\0\0abc\0"s;  // an unknown chunk, padded to a whole word
    const auto data = "data\x02\0\0\0\x80\x7f"s;
    const auto file = header + odd + format + data;
    const auto image = read(file);
    ASSERT_TRUE(image);
    EXPECT_EQ((std::tuple{image->formatTag, image->rate, image->bitsPerSample}),
              (std::tuple{1, 11025, 8}));
    EXPECT_FALSE(image->factSamples);
    EXPECT_TRUE(std::ranges::equal(image->data, std::array{std::byte{0x80}, std::byte{0x7F}}));
    EXPECT_EQ(read(header + "fact\x04\0\0\0\x02\1\0\0"s + format + data)->factSamples, 258u);
    EXPECT_FALSE(read(header + "fact\x03\0\0\0\x02\1\0\0"s + format + data)->factSamples);
    for (const auto& wrong :
         {""s, "RIFX" + header.substr(4) + format + data, header + data, header + format,
          header + format + data.substr(0, 9), header + format + "data\xff\xff\xff\xff"})
        EXPECT_FALSE(read(wrong)) << wrong;
}

}  // namespace skylob::test
