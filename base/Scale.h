#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/WindowStore.h"

namespace skylob {

/// How large everything is shown, in percent of the size that the desktop gives it.
inline constexpr int kNormalScale = 100, kLargestScale = 200;

/// What players choose from.
inline constexpr std::array kScales{kNormalScale, 125, 150, 175, kLargestScale};

/// The scale that the text is: a whole number from kNormalScale to kLargestScale, else nothing.
std::optional<int> scaleOf(std::string_view text);

/// The scale that was kept last; kNormalScale when there is none or nonsense.
int recallScale(const WindowStore& windows);

void keepScale(WindowStore& windows, int percent);

}  // namespace skylob
