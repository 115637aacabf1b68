#pragma once

#include <QWidget>

#include "battle/FieldPicture.h"

namespace skylob {

class QtShapes;

/// Shows a FieldPicture in device pixels, and tells of clicks on the pieces that stand in it.
class picGameField : public QWidget {
    Q_OBJECT

  public:
    /// `picture` and `shapes`, which draws the pieces, must outlive the widget.
    picGameField(FieldPicture& picture, const QtShapes& shapes, QWidget* parent);

    /// Makes the picture as large as the widget is on its display; pens grow as the widget does
    /// beyond `smallest`. The picture is black and without pieces afterwards. False when it had
    /// that size already and was left alone. As long as it has another one, it is shown scaled.
    bool fitPicture(const QSize& smallest);

    /// Brings what has changed in the picture to the display before it returns.
    void showChanges();

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
    QRectF logical(const PixelRect& area) const;
    int pieceAt(QPointF position) const;

    FieldPicture& m_picture;
    const QtShapes& m_shapes;
    int m_pressedPiece = 0;
};

}  // namespace skylob
