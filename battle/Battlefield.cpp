#include "battle/Battlefield.h"

#include <iterator>
#include <stdexcept>

namespace skylob {

namespace {

/// Between the field's edges and the mountain lie two zones on either side.
struct Zones {
    int A = 0, L = 0, PeakX = 0, R = 0, B = 0;
    int k1 = 0, k2 = 0, k3 = 0, k4 = 0;
};

/// How a column's ground follows from its neighbour's.
struct ColumnRule {
    int kind, jitter;
};

void drawMountain(Zones& zones, RandomSource& random) {
    zones.PeakX = RandomInt(random, 300, 800);
    do {
        zones.L = RandomInt(random, 150, zones.PeakX - 50);
    } while (zones.PeakX - zones.L >= 300);
    do {
        zones.R = RandomInt(random, zones.PeakX + 50, 850);
    } while (zones.R - zones.PeakX >= 300);
    zones.A = RandomInt(random, 20, zones.L - 50);
    zones.B = RandomInt(random, zones.R + 50, 980);
}

void drawKindsOfHighField(Zones& zones, RandomSource& random) {
    // High fields only keep level or fall towards their edges.
    zones.k1 = RandomInt(random, 3, 4);
    zones.k2 = zones.k1 == 4 ? RandomInt(random, 3, 4) : 4;
    zones.k4 = RandomInt(random, 3, 4);
    zones.k3 = zones.k4 == 4 ? RandomInt(random, 3, 4) : 4;
}

void drawKindsOfLowField(Zones& zones, RandomSource& random) {
    zones.k1 = RandomInt(random, 2, 4);
    zones.k2 = RandomInt(random, 2, 4);
    zones.k3 = RandomInt(random, 3, 4);
    zones.k4 = RandomInt(random, 2, 4);
}

ColumnRule ruleOfColumn(const Zones& zones, int x, RandomSource& random) {
    if (x < zones.A) return {zones.k1, 1};
    if (x < zones.L) return {zones.k2, 2};
    if (x < zones.PeakX - 20) return {RandomInt(random, 0, 1), 3};
    if (x < zones.PeakX + 20) return {3, 3};
    if (x < zones.R) return {RandomInt(random, 5, 6), 3};
    if (x < zones.B) return {zones.k4, 2};
    return {zones.k3, 1};
}

int clampedHeight(int height, bool onMountain, RandomSource& random) {
    if (height >= 901) return RandomInt(random, 898, 902);
    if (height >= 801 && !onMountain) return RandomInt(random, 798, 802);
    if (height < 25) return RandomInt(random, 25, 30);
    return height;
}

void drawStar(Battlefield& field, int x, int height, RandomSource& random) {
    // The higher the ground, the fewer the stars above it; below 600 every column has one.
    // Quirk "stars over valleys": below 300 the bounds are 1 and 0, which make 1, too.
    if (RandomInt(random, 1, height / 300) != 1) return;
    const int y = RandomInt(random, height + 25, 999);
    const int colour = RandomInt(random, 1, 13);
    field.stars.push_back({x, y, paletteColour(colour)});
}

void drawColumns(Battlefield& field, const Zones& zones, int height, RandomSource& random) {
    for (int x = 1; x <= kColumns; ++x) {
        const auto [kind, jitter] = ruleOfColumn(zones, x, random);
        height += SlopeStep(random, kind);
        height += RandomInt(random, -jitter, jitter);
        height = clampedHeight(height, x >= zones.L && x <= zones.R, random);
        field.TerrainHeight[static_cast<std::size_t>(x)] = height;
        drawStar(field, x, height, random);
    }
}

void drawMoon(Battlefield& field, RandomSource& random) {
    field.MoonX = RandomInt(random, 50, 950);
    const int ground = field.heightAt(field.MoonX);
    field.moonY = RandomInt(random, ground + 50, 975);
}

void drawPieces(Battlefield& field, RandomSource& random) {
    field.PieceX[1] = RandomInt(random, 20, field.leftFoot - 20);
    field.PieceX[2] = RandomInt(random, field.rightFoot + 20, 980);
    for (const int side : kSides) field.PieceY[side] = field.heightAt(field.PieceX[side]);
}

}  // namespace

int SlopeStep(RandomSource& random, int kind) {
    // Quirk "backward slopes": the falling kinds pass the larger bound first. RandomInt reaches
    // that one only when r is exactly 0, and the other never, which makes a mountain's far side
    // what it is.
    struct Bounds {
        int low, high;
    };
    static constexpr Bounds kSlopes[] = {{4, 7},  {1, 4},   {-1, 3}, {-1, 1},
                                         {-3, 1}, {-1, -4}, {-4, -7}};
    const auto slope = static_cast<std::size_t>(kind);
    if (slope >= std::size(kSlopes)) return 0;
    return RandomInt(random, kSlopes[slope].low, kSlopes[slope].high);
}

Colour TerrainColours(int number) {
    switch (number) {
        case 1:
            return paletteColour(2);  // green
        case 2:
            return Colour::fromBgr(0x800000);  // navy
        case 3:
            return Colour::fromBgr(0x000080);  // maroon
        case 4:
            return Colour::fromBgr(0x800080);  // purple
        case 5:
            return Colour::fromBgr(0x004080);  // brown
        case 6:
            return Colour::fromBgr(0x0087D0);  // tan
        default:
            throw std::out_of_range("no such ground colour");
    }
}

void generateBattlefield(Battlefield& field, RandomSource& random, int roundNumber, int numRounds) {
    // Quirk "waxing moon": this does not stop where the shadow covers the moon.
    const int moonOffset = roundNumber == 1 ? 40 : field.MoonOffset - 4;
    field = Battlefield{};
    field.MoonOffset = moonOffset;
    field.stars.reserve(kColumns);

    const bool high = RandomInt(random, -1, 0) == -1;
    const int height = high ? RandomInt(random, 600, 750) : RandomInt(random, 30, 180);
    Zones zones;
    drawMountain(zones, random);
    if (high)
        drawKindsOfHighField(zones, random);
    else
        drawKindsOfLowField(zones, random);
    field.PeakX = zones.PeakX;
    field.leftFoot = zones.L;
    field.rightFoot = zones.R;

    drawColumns(field, zones, height, random);
    if (roundNumber < numRounds) drawMoon(field, random);
    field.groundColour = TerrainColours(RandomInt(random, 1, 6));
    drawPieces(field, random);
}

int moonShadow(const Battlefield& field) {
    // Quirk "waxing moon": to the left of the moon's centre from the tenth round on.
    return field.MoonOffset - 5;
}

void drawBattlefield(const Battlefield& field, FieldPicture& picture, int groundLineWidth) {
    picture.hidePieces();
    picture.clear();
    for (const auto& star : field.stars)
        picture.setPoint(star.x, star.y, star.colour, field.starWidth);
    if (field.hasMoon()) {
        const int shadow = field.MoonX + moonShadow(field);
        picture.filledCircle(field.MoonX, field.moonY, kMoonRadius, kCyan);
        picture.filledCircle(shadow, field.moonY, kMoonRadius, kBlack);
    }
    picture.ground(field.TerrainHeight, field.groundColour, groundLineWidth);
    for (const int side : kSides) picture.placePiece(side, field.PieceX[side], field.PieceY[side]);
    picture.refresh();
}

}  // namespace skylob
