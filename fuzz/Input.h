#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace skylob::fuzz {

/// What the fuzzer has made up, taken from the front. Where it has run out, numbers are 0 and texts
/// empty. Texts end at a line's end, so that seeds can be written by hand.
class Input {
  public:
    Input(const std::uint8_t* bytes, std::size_t size)
        : m_rest{reinterpret_cast<const char*>(bytes), size} {}

    bool isOver() const { return m_rest.empty(); }

    int byte() {
        const std::string_view one = bytes(1);
        return one.empty() ? 0 : static_cast<unsigned char>(one.front());
    }
    /// Of all 32 bits.
    std::int32_t number() {
        std::uint32_t bits = 0;
        for (const char one : bytes(4)) bits = bits << 8 | static_cast<unsigned char>(one);
        return static_cast<std::int32_t>(bits);
    }
    /// Of one byte, which is enough for ranges of 256 numbers.
    int from(int low, int high) { return low + byte() % (high - low + 1); }
    bool flag() { return byte() % 2 != 0; }
    /// Of as many bytes as the next one says.
    std::string text() { return std::string{bytes(static_cast<std::size_t>(byte()))}; }
    std::string line() {
        const std::string_view text = bytes(std::min(m_rest.find('\n'), m_rest.size()));
        bytes(1);
        return std::string{text};
    }
    std::string_view rest() { return bytes(m_rest.size()); }

  private:
    std::string_view bytes(std::size_t count) {
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::string_view m_rest;
};

/// Ends the run with a finding unless the rule holds.
inline void require(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "broken rule: %s\n", rule);
    std::abort();
}

}  // namespace skylob::fuzz

/// What the fuzzer calls with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
