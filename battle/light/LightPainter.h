#pragma once

#include "base/Motion.h"
#include "battle/BattleState.h"
#include "battle/FieldPicture.h"
#include "battle/FieldScene.h"
#include "battle/light/ChangedAreas.h"
#include "battle/light/LightCanvas.h"
#include "battle/light/Skyline.h"

namespace skylob {

/// What the painters of light look at. It only refers to its parts.
struct FieldSight {
    const FieldPicture& picture;
    const FieldScene& scene;
    const BattleState& state;
    const Skyline& skyline;

    /// The whole picture has been made anew since the last look, and so is all light over it.
    bool remade = false;
    /// Something moves: only then may light change by itself, for the sake of change.
    bool moving = false;
    /// Counts the looks at something that moves.
    int step = 0;
    /// Reduced: nothing flashes.
    Motion motion = Motion::Full;

    /// Device pixels: of a length in logical ones.
    double scaled(double length) const { return length * picture.dotScale(); }

    /// The middle of the dot that the rules draw at a point of the field, 1 wide.
    LightPoint middleOf(FieldPoint at) const {
        const PixelRect dot = picture.dotArea(at.x, at.y);
        return {dot.x + dot.width / 2.0, dot.y + dot.height / 2.0};
    }
};

/// One kind of light over the field. It is first shown what is happening, once, and then paints
/// what follows from that, area by area, the same whatever the area is.
class LightPainter {
  public:
    virtual ~LightPainter() = default;

    /// Looks, and adds every area where this makes its light another one than before. (Where the
    /// picture has been remade, everything is painted anew without that.)
    virtual void follow(const FieldSight& sight, ChangedAreas& changed) = 0;

    /// Paints the light of the last look.
    virtual void paint(LightCanvas& canvas) const = 0;
};

}  // namespace skylob
