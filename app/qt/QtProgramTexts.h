#pragma once

#include "base/StringTable.h"

namespace skylob {

/// The manual's first topic, which welcomes new users as well.
inline constexpr int kOverviewText = 1000;

/// The longer texts that are compiled into the program: the computer's remarks and the manual.
StringTable programTexts();

}  // namespace skylob
