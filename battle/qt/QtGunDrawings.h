#pragma once

#include <map>

#include "battle/light/GunDrawings.h"

class QImage;
class QPainter;
class QRectF;

namespace skylob {

class QtShapes;

/// Draws the guns with the program's shapes, and keeps what it has drawn last.
class QtGunDrawings : public GunDrawings {
  public:
    /// `shapes` must outlive this.
    explicit QtGunDrawings(const QtShapes& shapes) : m_shapes{shapes} {}

    std::shared_ptr<const GunDrawing> draw(const GunPose& pose,
                                           FieldPicture::PixelSize size) override;

  private:
    struct Key {
        int side, turn, recoil, width, height;
        bool onTurn, wrecked;

        // The 0 that it finds here is the language's own.
        auto operator<=>(const Key&) const = default;  // NOLINT(modernize-use-nullptr)
    };

    GunDrawing drawn(const GunPose& pose, FieldPicture::PixelSize size) const;
    void paintGun(QPainter& painter, const GunPose& pose, const QRectF& box) const;
    void paintBarrel(QPainter& painter, const GunPose& pose, const QRectF& box) const;
    void paintSign(QPainter& painter, int side, const QRectF& box) const;

    const QtShapes& m_shapes;
    std::map<Key, std::shared_ptr<const GunDrawing>> m_drawn;
};

/// The same image for the picture; `drawing` has the format ARGB32_Premultiplied.
FieldPicture::PieceImage pieceImage(const QImage& drawing);

}  // namespace skylob
