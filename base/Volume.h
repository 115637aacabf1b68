#pragma once

#include "base/WindowStore.h"

namespace skylob {

/// How loud sounds are that are on, in percent of how they were recorded.
inline constexpr int kFullVolume = 100;

/// The volume that was kept last, 0 to kFullVolume; kFullVolume when there is none or nonsense.
int recallVolume(const WindowStore& windows);

void keepVolume(WindowStore& windows, int percent);

}  // namespace skylob
