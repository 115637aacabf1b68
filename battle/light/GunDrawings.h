#pragma once

#include <memory>

#include "battle/light/GunPose.h"

namespace skylob {

/// An image of a gun; x and y are where its left upper pixel comes, seen from that of the piece's
/// area, beyond which a barrel and the sign of the turn may reach.
struct GunDrawing {
    FieldPicture::PieceImage image;
    int x = 0, y = 0;
};

/// Where the drawn guns come from.
class GunDrawings {
  public:
    virtual ~GunDrawings() = default;

    /// A gun in that pose, for a piece's area of that size.
    virtual std::shared_ptr<const GunDrawing> draw(const GunPose& pose,
                                                   FieldPicture::PixelSize size) = 0;
};

}  // namespace skylob
