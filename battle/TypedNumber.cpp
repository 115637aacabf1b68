#include "battle/TypedNumber.h"

#include <utility>

namespace skylob {

std::optional<int> TypedNumber::type(int digit) {
    m_digits += static_cast<char>('0' + digit);
    if (m_digits.size() < std::to_string(m_range.maximum).size()) return std::nullopt;
    return finish();
}

std::optional<int> TypedNumber::finish() {
    const std::string digits = std::exchange(m_digits, {});
    if (digits.empty()) return std::nullopt;
    const int number = std::stoi(digits);
    if (m_range.held(number) != number) return std::nullopt;
    return number;
}

}  // namespace skylob
