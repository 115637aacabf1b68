#pragma once

#include <array>
#include <cstddef>

namespace skylob {

/// The two sides, as they are numbered everywhere.
inline constexpr int kLeftSide = 1, kRightSide = 2;
inline constexpr std::array kSides{kLeftSide, kRightSide};

/// The opponent of side 1 is side 2 and the other way round.
constexpr int opponentOf(int side) {
    return 3 - side;
}

/// One value for each of the two sides, indexed by the side's number: 1 (left) or 2 (right).
/// Any other index throws std::out_of_range.
template <typename Value>
class PerSide {
  public:
    PerSide() = default;
    constexpr PerSide(Value left, Value right) : m_values{left, right} {}

    Value& operator[](int side) { return m_values.at(static_cast<std::size_t>(side - 1)); }
    constexpr const Value& operator[](int side) const {
        return m_values.at(static_cast<std::size_t>(side - 1));
    }

    bool operator==(const PerSide&) const = default;

  private:
    std::array<Value, 2> m_values{};
};

}  // namespace skylob
