#pragma once

#include "base/Colour.h"

namespace skylob {

/// What everything that is to be read has to its ground at least, and what marks have that mean
/// something.
inline constexpr double kTextContrast = 4.5, kMarkContrast = 3;

/// How light a colour is, from 0 (black) to 1 (white): the relative luminance of WCAG 2.
double luminance(Colour colour);

/// How far two colours are apart, from 1 (not at all) to 21: the contrast ratio of WCAG 2.
double contrast(Colour one, Colour other);

}  // namespace skylob
