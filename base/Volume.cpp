#include "base/Volume.h"

#include <string>

#include "base/WholeNumber.h"

namespace skylob {

namespace {
constexpr std::string_view kVolumeKey = "Volume";
}

int recallVolume(const WindowStore& windows) {
    const int percent = wholeNumber(windows.recall(kVolumeKey, "")).value_or(kFullVolume);
    return percent >= 0 && percent <= kFullVolume ? percent : kFullVolume;
}

void keepVolume(WindowStore& windows, int percent) {
    windows.keep(kVolumeKey, std::to_string(percent));
}

}  // namespace skylob
