#pragma once

class QPainter;

namespace skylob {

class QtShapes;
struct TitleSpot;

/// The parts of the title page's picture, in pixels from the page's upper left corner. Painters are
/// to be antialiasing.

/// What never moves in the upper 640 x 280: sky, moon, land and the two pieces, without stars.
void paintTitleBackdrop(QPainter& painter, const QtShapes& shapes);

void paintTitleSpot(QPainter& painter, const TitleSpot& spot);

/// The dark ground below it, 640 x 160.
void paintTitleGround(QPainter& painter, const QtShapes& shapes);

}  // namespace skylob
