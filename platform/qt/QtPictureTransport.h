#pragma once

namespace skylob {

/// Has an X server get what is painted over its connection instead of through shared memory; other
/// displays are not touched. To be called before the QApplication is made.
///
/// A half step of a shell changes some hundred pixels. In shared memory they may not be painted
/// until the server has read those of the half step before, which costs a round trip each time,
/// many times what sending them does.
void sendPicturesInline();

}  // namespace skylob
