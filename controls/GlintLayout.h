#pragma once

#include <vector>

#include "controls/GlintSurface.h"

namespace skylob {

/// The bounds within which a caption is measured, for a client and a picture of these sizes.
/// A PicturePosition that has no name has none: everything is 0.
GlintRect captionBounds(int picturePosition, GlintSize client, GlintSize picture);

/// How far the measured caption is moved to stand in the middle.
GlintSize captionShift(int picturePosition, GlintSize client, GlintSize picture,
                       const GlintRect& measured);

/// Where the picture stands beside a caption: 4 pixels from it, on its centre line; without a
/// caption in the middle of the button.
GlintRect picturePlace(int picturePosition, GlintSize client, GlintSize picture,
                       const GlintRect& text, bool hasCaption);

/// Lays out caption and picture anew.
void layOut(GlintState& button, const GlintSurface& surface);

/// The client rectangle less the bevel of the style.
GlintRect contentRectangle(int buttonType, GlintSize client);

/// The pixels that the style's outline leaves out.
std::vector<GlintPixel> pixelsOutside(int buttonType, GlintSize client);

/// What follows from a new size or style: content, layout, region, and a redraw in the current
/// state unless the width is 0. Does nothing while a background capture is in progress.
void resize(GlintState& button, GlintSurface& surface);

/// Captures the background; a resize that this causes has no effect.
void captureBackground(GlintState& button, GlintSurface& surface);

}  // namespace skylob
