#pragma once

#include <QRegion>
#include <QWidget>
#include <optional>

#include "battle/FieldPicture.h"
#include "battle/FieldPoint.h"
#include "battle/FieldScene.h"
#include "battle/light/StormShow.h"

namespace skylob {

class FieldLayer;
class QtShapes;

/// Shows a FieldPicture in device pixels with the light of a FieldLayer over it, and tells of
/// clicks on the pieces that stand in it.
class picGameField : public QWidget {
    Q_OBJECT

  public:
    /// `picture`, `layer`, which lies over it, and `shapes`, which draws the pieces, must outlive
    /// the widget.
    picGameField(FieldPicture& picture, FieldLayer& layer, const QtShapes& shapes, QWidget* parent);

    /// Makes the picture as large as the widget is on its display; pens grow as the widget does
    /// beyond `smallest`. The picture is black and without pieces afterwards. False when it had
    /// that size already and was left alone. As long as it has another one, it is shown scaled.
    bool fitPicture(const QSize& smallest);

    /// Whose piece stands at a position of this widget; 0 where there is none.
    int pieceAt(QPointF position) const;

    /// The point of the field at a position of this widget, and the other way about.
    FieldPoint fieldPoint(QPointF position) const;
    QPointF widgetPoint(FieldPoint point) const;

    /// Brings what has changed in the picture and its light to the display before it returns.
    void showChanges();

    /// Makes painting cheap until something changes: for what is drawn over it again and again.
    void keepStill();

    /// Lets a storm's show go on by a picture, over the rules' picture, or ends it.
    void showStorm();
    void endStorm();

    /// Where on this widget a shell flies or bursts; nothing when none does.
    std::optional<QPoint> placeOfShell(const FieldScene& scene) const;

    /// Where on the desktop a side's piece is, and a point of the field, each with some room round
    /// it.
    QRect placeOfPiece(int side) const;
    QRect placeOf(FieldPoint point) const;

  signals:
    /// A side's piece was clicked.
    void pieceClicked(int side);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    QSize fittingSize() const;
    bool isFitting() const;
    QRect touched(const PixelRect& area) const;
    void repaintStorm();
    void repaintParts(const QRegion& region);
    void paintFitting(QPainter& painter, const QRegion& region);
    void paintScaled(QPainter& painter);
    void drawLayer(QPainter& painter, const PixelRect& area);
    QRectF logical(const PixelRect& area) const;
    QRect onDesktop(const PixelRect& area) const;

    FieldPicture& m_picture;
    FieldLayer& m_layer;
    const QtShapes& m_shapes;
    StormShow m_storm;
    QList<QRect> m_parts;  ///< those that differ from what was shown last; they may overlap
    QRegion m_step;        ///< what holds them, while it is repainted
    int m_pressedPiece = 0;
    QPointF m_pressedAt;
};

}  // namespace skylob
