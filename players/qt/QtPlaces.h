#pragma once

#include <QMargins>
#include <QRect>
#include <vector>

class QWidget;

namespace skylob {

/// Where the widgets of a window stand that may grow.
class QtPlaces {
  public:
    /// How much of the window's growth each edge of a widget follows, in sixths.
    using Follows = QMargins;

    /// Grows with the window, or keeps its size at one of the right corners.
    static constexpr Follows kGrows{0, 0, 6, 6}, kUpperRight{6, 0, 6, 0}, kLowerRight{6, 6, 6, 6};

    /// `place` is where the widget stands in the smallest window. It must outlive this object.
    void put(QWidget* widget, const QRect& place, const Follows& follows);

    /// Moves all of them to where they stand in a window that is larger by `growth`.
    void grow(const QSize& growth) const;

  private:
    struct Place {
        QWidget* widget;
        QRect first;
        Follows follows;
    };
    std::vector<Place> m_places;
};

}  // namespace skylob
