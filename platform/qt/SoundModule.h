#pragma once

#include <memory>

#include "platform/qt/SoundDevice.h"

namespace skylob {

/// Makes the sound device, out of a library of the program's own that is loaded the first time:
/// the audio library brings more libraries along than all the rest of the program. Where it cannot
/// be loaded, one line on standard error says so, and the device never opens.
std::unique_ptr<SoundDevice> loadSoundDevice(const char* file = "skylob-sound.so");

}  // namespace skylob
