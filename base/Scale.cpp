#include "base/Scale.h"

#include <string>

#include "base/WholeNumber.h"

namespace skylob {

namespace {
constexpr std::string_view kKey = "Scale";
}

std::optional<int> scaleOf(std::string_view text) {
    const std::optional<int> percent = wholeNumber(text);
    if (!percent || *percent < kNormalScale || *percent > kLargestScale) return std::nullopt;
    return percent;
}

int recallScale(const WindowStore& windows) {
    return scaleOf(windows.recall(kKey, "")).value_or(kNormalScale);
}

void keepScale(WindowStore& windows, int percent) {
    windows.keep(kKey, std::to_string(percent));
}

}  // namespace skylob
