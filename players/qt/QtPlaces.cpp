#include "players/qt/QtPlaces.h"

#include <QWidget>

namespace skylob {

void QtPlaces::put(QWidget* widget, const QRect& place, const Follows& follows) {
    widget->setGeometry(place);
    m_places.push_back({widget, place, follows});
}

void QtPlaces::grow(const QSize& growth) const {
    const auto share = [](int whole, int sixths) { return whole * sixths / 6; };
    for (const auto& [widget, first, follows] : m_places)
        widget->setGeometry(first.adjusted(
            share(growth.width(), follows.left()), share(growth.height(), follows.top()),
            share(growth.width(), follows.right()), share(growth.height(), follows.bottom())));
}

}  // namespace skylob
