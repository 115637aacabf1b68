#pragma once

#include "Tour.h"

namespace skylob {

namespace test {
struct Screen;
}

/// Plays a turn of each side on a battle screen that has just come up, and measures what the light
/// over the field tells beside the rules' colours: whose turn it is, where the last shot came down,
/// where the shell is, where a drag aims. The screen too, on both turns and in flight.
void playAndLook(Tour& tour, test::Screen& screen, const QString& place);

}  // namespace skylob
