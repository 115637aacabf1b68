#include "controls/GlintLayout.h"

namespace skylob {

namespace {

constexpr int kPictureGap = 4;

}  // namespace

GlintRect captionBounds(int picturePosition, GlintSize client, GlintSize picture) {
    const auto [w, h] = client;
    switch (picturePosition) {
        case kPictureLeft:
            return {picture.width + 4, 4, w - 8, h - 8};
        case kPictureRight:
            return {4, 4, w - picture.width - 8, h - 8};
        case kPictureAbove:
            return {4, picture.height + 4, w - 8, h - 8};
        case kPictureBelow:
            return {4, 4, w - 8, h - picture.height - 8};
        case kPictureBehind:
            return {4, 1, w - 8, h - 4};
        default:
            return {};
    }
}

GlintSize captionShift(int picturePosition, GlintSize client, GlintSize picture,
                       const GlintRect& measured) {
    // Quirk "centred by the far edges": halves, cut towards zero, of the edges rather than of width
    // and height. Quirk "two pixels right and below": the margin before the caption is in them.
    const int dx = (client.width - measured.right) / 2;
    const int dy = (client.height - measured.bottom) / 2;
    switch (picturePosition) {
        case kPictureLeft:
        case kPictureAbove:
        case kPictureBehind:
            return {dx, dy};
        case kPictureRight:
            return {(client.width - picture.width - measured.right - 4) / 2, dy};
        case kPictureBelow:
            return {dx, (client.height - picture.height - measured.bottom - 4) / 2};
        default:
            return {};
    }
}

GlintRect picturePlace(int picturePosition, GlintSize client, GlintSize picture,
                       const GlintRect& text, bool hasCaption) {
    const GlintRect middle = hasCaption ? text : GlintRect{0, 0, client.width, client.height};
    int x = middle.left + (middle.width() - picture.width) / 2;
    int y = middle.top + (middle.height() - picture.height) / 2;
    if (hasCaption) {
        switch (picturePosition) {
            case kPictureLeft:
                x = text.left - kPictureGap - picture.width;
                break;
            case kPictureRight:
                x = text.right + kPictureGap;
                break;
            case kPictureAbove:
                y = text.top - kPictureGap - picture.height;
                break;
            case kPictureBelow:
                y = text.bottom + kPictureGap;
                break;
            default:
                break;
        }
    }
    return {x, y, x + picture.width, y + picture.height};
}

void layOut(GlintState& button, const GlintSurface& surface) {
    const int position = button.PicturePosition;
    const GlintRect bounds = captionBounds(position, button.client, button.picture);
    const GlintRect measured = surface.measureCaption(button.Caption, bounds);
    const auto [dx, dy] = captionShift(position, button.client, button.picture, measured);
    button.text = measured.moved(dx, dy);
    button.textPressed = button.text.moved(1, 1);
    button.picturePlace =
        picturePlace(position, button.client, button.picture, button.text, !button.Caption.empty());
}

GlintRect contentRectangle(int buttonType, GlintSize client) {
    const auto shrunk = [client](int by) {
        return GlintRect{by, by, client.width - by, client.height - by};
    };
    switch (buttonType) {
        case kStyleRounded:
            return shrunk(4);
        case kStyleGlass:
            return shrunk(3);
        case kStyleDropped:
            return shrunk(5).moved(1, 1);
        default:
            return shrunk(0);
    }
}

std::vector<GlintPixel> pixelsOutside(int buttonType, GlintSize client) {
    const int right = client.width - 1, bottom = client.height - 1;
    switch (buttonType) {
        case kStyleRounded:
            return {{0, 0},          {1, 0},
                    {0, 1},          {right - 1, 0},
                    {right, 0},      {right, 1},
                    {0, bottom},     {1, bottom},
                    {0, bottom - 1}, {right - 1, bottom},
                    {right, bottom}, {right, bottom - 1}};
        case kStyleDropped:
            return {{0, bottom}, {right, 0}};
        default:
            return {};
    }
}

void resize(GlintState& button, GlintSurface& surface) {
    if (button.CaptureBusy) return;
    button.client = surface.clientSize();
    button.content = contentRectangle(button.ButtonType, button.client);
    layOut(button, surface);
    surface.setRegion(pixelsOutside(button.ButtonType, button.client));
    if (button.client.width != 0) Redraw(button, surface, button.currentState, true);
}

void captureBackground(GlintState& button, GlintSurface& surface) {
    button.CaptureBusy = true;
    surface.captureBackground();
    button.CaptureBusy = false;
}

}  // namespace skylob
