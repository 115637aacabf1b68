#pragma once

namespace skylob {

class MessageBoxes;
class QtSoundPlayer;

/// Quits the running application when its last sound has been heard, but does not wait for that
/// without end. `sounds` must outlive the application's event loop.
void quitWhenSilent(const QtSoundPlayer& sounds);

/// Closes the sounds after the last event. Where the sound system hangs, which nobody could wait
/// for, ends the process with that status.
void closeSounds(QtSoundPlayer& sounds, int status);

/// Says what failed and ends the process with status 1.
[[noreturn]] void endWithError(MessageBoxes& boxes, const char* why);

}  // namespace skylob
