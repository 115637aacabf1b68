#include "base/Volume.h"

#include <charconv>
#include <string>

namespace skylob {

int recallVolume(const WindowStore& windows) {
    const std::string kept = windows.recall("Volume", "");
    int percent = 0;
    const auto [end, error] = std::from_chars(kept.data(), kept.data() + kept.size(), percent);
    const bool isNumber = error == std::errc{} && end == kept.data() + kept.size();
    return isNumber && percent >= 0 && percent <= kFullVolume ? percent : kFullVolume;
}

void keepVolume(WindowStore& windows, int percent) {
    windows.keep("Volume", std::to_string(percent));
}

}  // namespace skylob
