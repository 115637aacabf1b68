#pragma once

#include <vector>

#include "base/Colour.h"

namespace skylob {

/// The title's animation takes 6 seconds and then begins again, without a jump.
inline constexpr double kTitleLoopSeconds = 6.0;
inline constexpr int kTitleWidth = 640;
inline constexpr int kTitleHeight = 280;

/// A disc or a ring; everything that moves on the title is made of them. Lengths are in pixels
/// from the upper left corner.
struct TitleSpot {
    double x = 0;
    double y = 0;
    double radius = 0;
    double ringWidth = 0;  ///< 0: a disc
    Colour colour;
    int alpha = 255;  ///< 0 invisible, 255 opaque

    bool operator==(const TitleSpot&) const = default;
};

/// One gun hits the other over the mountain, again and again, under twinkling stars.
class TitleScene {
  public:
    TitleScene();

    /// What is to be seen at a time, in the order of painting. Any time from 0 will do. What does
    /// not change keeps its place in the list for as long as possible.
    std::vector<TitleSpot> at(double seconds) const;

  private:
    struct Star {
        TitleSpot spot;
        double period;  ///< seconds; the loop is a multiple of it
        double phase;   ///< 0 to 1
    };

    std::vector<Star> m_stars;
};

}  // namespace skylob
