#include "base/Scale.h"

#include <string>

#include "base/WholeNumber.h"

namespace skylob {

namespace {
constexpr std::string_view kScaleKey = "Scale";
}

std::optional<int> scaleOf(std::string_view text) {
    const std::optional<int> percent = wholeNumber(text);
    if (!percent || *percent < kNormalScale || *percent > kLargestScale) return std::nullopt;
    return percent;
}

int recallScale(const WindowStore& windows) {
    return scaleOf(windows.recall(kScaleKey, "")).value_or(kNormalScale);
}

void keepScale(WindowStore& windows, int percent) {
    windows.keep(kScaleKey, std::to_string(percent));
}

}  // namespace skylob
