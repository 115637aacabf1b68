#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "base/Colour.h"
#include "base/PerSide.h"
#include "base/RandomInt.h"
#include "battle/FieldPicture.h"

namespace skylob {

/// The highest column number; columns run from 1.
inline constexpr int kColumns = 1000;

/// One round's battlefield: the ground, the sky above it and where the pieces stand. All
/// positions and heights are whole field units, x 1..1000 to the right, y 1..1000 upwards.
struct Battlefield {
    struct Star {
        int x = 0, y = 0;
        Colour colour;
    };

    std::array<int, kColumns + 1> TerrainHeight{};  ///< by column; element 0 is unused
    int PeakX = 0;                                  ///< centre column of the mountain
    int leftFoot = 0, rightFoot = 0;                ///< the columns where the mountain begins, ends
    PerSide<int> PieceX, PieceY;                    ///< a piece's column and the ground under it

    std::vector<Star> stars;
    int starWidth = 1;         ///< of the pen that draws the stars
    int MoonX = 0, moonY = 0;  ///< the moon's centre; MoonX is 0 when there is no moon
    int MoonOffset = 0;        ///< kept from round to round: 40 in the first, then 4 less each
    Colour groundColour = kBlack;

    bool hasMoon() const { return MoonX != 0; }

    /// The ground's height at column x, 1..1000.
    int heightAt(int x) const { return TerrainHeight[static_cast<std::size_t>(x)]; }
};

/// The radius of the moon and of the shadow on it, in horizontal units.
inline constexpr int kMoonRadius = 40;

/// How far to the right of the moon's centre its shadow has its own.
int moonShadow(const Battlefield& field);

/// The random step in height from one column to the next on a slope of the given kind, 0 (steep
/// up) to 6 (steep down); 0 for any other kind, without a draw.
int SlopeStep(RandomSource& random, int kind);

/// The ground's colours, numbered 1 to 6.
Colour TerrainColours(int number);

/// Makes `field` the battlefield of round `roundNumber` (1 or more) of `numRounds`. Only its
/// MoonOffset is carried over from the round before; its stars are 1 wide. The last round has no
/// moon. Draws from `random` in a fixed order, so that a seed makes a battlefield.
void generateBattlefield(Battlefield& field, RandomSource& random, int roundNumber, int numRounds);

/// Draws the battlefield as the persistent picture, with the two pieces standing on it. The
/// ground's columns are drawn `groundLineWidth` wide.
void drawBattlefield(const Battlefield& field, FieldPicture& picture, int groundLineWidth);

}  // namespace skylob
