#include "look/Contrast.h"

#include <algorithm>
#include <cmath>

namespace skylob {

namespace {

/// A channel's share of the light, of which displays make less than its number says.
double linear(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

}  // namespace

double luminance(Colour colour) {
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) +
           0.0722 * linear(colour.blue());
}

double contrast(Colour one, Colour other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace skylob
