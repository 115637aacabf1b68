#pragma once

#include <optional>
#include <string>

#include "battle/BarRange.h"

namespace skylob {

/// A number that is typed into a bar, digit by digit: the bar is set once, when it is complete.
class TypedNumber {
  public:
    /// As many digits as the range's maximum has make a number complete.
    explicit TypedNumber(const BarRange& range) : m_range{range} {}

    /// Adds a digit, 0 to 9. The number when it is complete with that and in range; one that is out
    /// of range is dropped.
    std::optional<int> type(int digit);

    /// Nothing more is to come: the number if it is in range as it stands.
    std::optional<int> finish();

    void drop() { m_digits.clear(); }

    /// The digits so far; empty when nothing is being typed.
    const std::string& digits() const { return m_digits; }

  private:
    BarRange m_range;
    std::string m_digits;
};

}  // namespace skylob
