#pragma once

#include <vector>

#include "base/Colour.h"

namespace skylob {

/// The title's animation takes 6 seconds and then begins again, without a jump.
inline constexpr double kTitleLoopSeconds = 6.0;

/// Where things stand in the title's picture, in pixels from its upper left corner; the page has
/// the foreground's hills below it. The land itself is a drawing, "title-land" and "title-ground".
inline constexpr int kTitleWidth = 640, kTitleHeight = 280, kTitlePageHeight = 440;

struct TitleDisc {
    int x, y, radius;
};
inline constexpr TitleDisc kTitleMoon{470, 72, 36};
inline constexpr TitleDisc kTitleMoonShadow{492, 66, 34};
inline constexpr int kTitleMoonGlow = 110;  ///< radius

/// The upper left corners of the two pieces' squares.
struct TitlePiece {
    int x, y;
};
inline constexpr TitlePiece kTitleGun{84, 232}, kTitleTarget{516, 232};
inline constexpr int kTitlePieceSize = 40;

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
