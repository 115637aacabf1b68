#pragma once

#include <QWidget>

#include "battle/FieldPicture.h"
#include "battle/StormShow.h"

namespace skylob {

class QtShapes;

/// Shows a FieldPicture in device pixels, and tells of clicks on the pieces that stand in it.
class picGameField : public QWidget {
    Q_OBJECT

  public:
    /// `picture` and `shapes`, which draws the pieces, must outlive the widget.
    picGameField(FieldPicture& picture, const QtShapes& shapes, QWidget* parent);

    /// Makes the picture as large as the widget is on its display. The picture is black and
    /// without pieces afterwards. False when it had that size already and was left alone.
    bool fitPicture();

    /// Brings what has changed in the picture to the display before it returns.
    void showChanges();

    /// Lets a storm's show go on by a picture, over the rules' picture, or ends it.
    void showStorm();
    void endStorm();

  signals:
    /// A side's piece was clicked.
    void pieceClicked(int side);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void repaintStorm();
    void paintStorm(QPainter& painter) const;
    QRectF logical(const PixelRect& area) const;
    int pieceAt(QPointF position) const;

    FieldPicture& m_picture;
    const QtShapes& m_shapes;
    StormShow m_storm;
    QList<QRect> m_stormParts;  ///< the parts of the storm's next picture that differ from the last
    QRect m_stormStep;          ///< around them, while they are repainted
    int m_pressedPiece = 0;
};

}  // namespace skylob
