#pragma once

#include <cstdint>

namespace skylob {

/// A point of the field in whole units; a shell in flight may be outside 1..1000.
struct FieldPoint {
    std::int32_t x = 0, y = 0;

    bool operator==(const FieldPoint&) const = default;
};

}  // namespace skylob
