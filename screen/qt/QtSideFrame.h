#pragma once

#include <QGroupBox>

namespace skylob {

/// A frame that belongs to one of the two sides: its badge, a disc with "1" or a diamond with "2",
/// stands before its title.
class QtSideFrame : public QGroupBox {
    Q_OBJECT

  public:
    enum class Badge { Hollow, Filled };

    /// With a hollow badge and no title.
    QtSideFrame(int side, QWidget* parent);

    int side() const { return m_side; }

    /// The side's own colour.
    QColor colour() const;

    /// A title of any characters: an ampersand is one, too. It is cut where the frame ends, and is
    /// then the tool tip as well. Screen readers hear it, or `spoken` in its place.
    void setCaption(const QString& caption, const QString& spoken = {});

    void setBadge(Badge badge);

    /// The edge and the title in the side's colour: it is on turn, or has won.
    void setTurn(bool isTurn);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitCaption();

    QString m_caption;
    int m_side;
    Badge m_badge = Badge::Hollow;
};

}  // namespace skylob
