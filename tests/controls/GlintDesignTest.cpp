#include "controls/GlintDesign.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

/// What setting a property sets off on a pressed button that is shown.
template <typename Value>
static std::string effects(void (GlintDesign::*set)(Value),
                           const std::type_identity_t<Value>& value) {
    GlintRig rig;
    rig.button.IsShown = true;
    rig.button.currentState = kStatePressed;
    (rig.design.*set)(value);
    return rig.taken();
}

TEST(GlintDesign, SetsOffItsEffectsInOrder) {
    using D = GlintDesign;
    EXPECT_EQ(effects(&D::setButtonType, 3), "layout;region 12;Redraw(2, true);mark BTYPE;");
    EXPECT_EQ(effects(&D::setButtonType, 11),
              "capture background;layout;region 0;Redraw(2, true);mark BTYPE;");
    EXPECT_EQ(effects(&D::setEnabled, false), "Redraw(0, true);disabled;mark ENAB;");
    EXPECT_EQ(effects(&D::setColorScheme, 3), "palette;Redraw(0, true);mark COLTYPE;");
    EXPECT_EQ(effects(&D::setPicturePosition, 1), "mark PICPOS;layout;Redraw(2, true);");
    // These are drawn only where they show.
    EXPECT_EQ(effects(&D::setUseMaskColor, true), "mark UMCOL;");
    EXPECT_EQ(effects(&D::setUseGreyscale, true), "mark NGREY;");
    EXPECT_EQ(effects(&D::setPictureOver, "x"), "mark PICO;");
    EXPECT_EQ(effects(&D::setValue, true), "mark VALUE;");
    GlintRig rig;
    rig.button.PictureNormal = "x";
    rig.button.IsOver = rig.button.CheckBoxBehaviour = true;
    rig.button.currentState = kStatePressed;
    rig.design.setUseMaskColor(true);
    rig.design.setUseGreyscale(true);
    rig.design.setPictureOver("y");
    rig.design.setValue(true);
    EXPECT_EQ(rig.taken(),
              "Redraw(2, true);mark UMCOL;Redraw(2, true);mark NGREY;"
              "Redraw(2, true);mark PICO;Redraw(0, true);mark VALUE;");
    EXPECT_TRUE(rig.button.Value);
    rig.design.setButtonType(11);  // not shown, it has nothing behind it to capture
    EXPECT_EQ(rig.taken(), "layout;region 0;Redraw(0, true);mark BTYPE;");
    rig.client = {0, 40};
    rig.design.setButtonType(14);
    EXPECT_EQ(rig.taken(), "layout;region 2;mark BTYPE;");
    rig.design.setFontName("Sans");
    rig.design.setFontSize(9);
    rig.design.setFontBold(true);
    rig.design.setFontItalic(true);
    rig.design.setFontUnderline(true);
    EXPECT_EQ(rig.surfaceFont, (GlintFont{"Sans", 9, true, true, true}));
}

TEST(GlintDesign, TakesHoverColoursAlongOnlyAtDesignTime) {
    GlintRig rig;
    rig.button.ColorScheme = 2;
    rig.design.setBackColor(0x111111);
    rig.design.setForeColor(0x222222);
    EXPECT_EQ(rig.button.BackOver | rig.button.ForeOver, 0u);
    EXPECT_EQ(rig.button.palette.FaceColour.bgr(), 0x111111u);
    rig.userMode = false;
    rig.design.setBackColor(0x333333);
    rig.design.setForeColor(0x444444);
    EXPECT_EQ(rig.button.BackOver, 0x333333u);
    EXPECT_EQ(rig.button.ForeOver, 0x444444u);
    // The palette learns of these only when it is made anew.
    rig.design.setBackOver(0x555555);
    rig.design.setMaskColor(0x666666);
    EXPECT_EQ(rig.button.palette.FaceOverColour.bgr(), 0x333333u);
    EXPECT_EQ(rig.button.palette.MaskRGB, kBlack);
    rig.interaction.ambientChanged();
    EXPECT_EQ(rig.button.palette.FaceOverColour.bgr(), 0x555555u);
    EXPECT_EQ(rig.button.palette.MaskRGB.bgr(), 0x666666u);
}

TEST(GlintDesign, PlacesANewButtonBlackOnBlack) {
    GlintRig rig;
    rig.design.initialiseProperties();
    EXPECT_EQ(rig.taken(), "font;palette;layout;");
    const GlintState& b = rig.button;
    EXPECT_TRUE(b.Enabled && b.ShowFocusRect && b.UseMaskColor);
    EXPECT_EQ(b.Caption + rig.surfaceFont.name, "cmdNewAmbient");
    EXPECT_EQ(b.ButtonType, 14);
    EXPECT_EQ(b.ColorScheme, 2);
    EXPECT_EQ(b.BackColor | b.BackOver | b.ForeColor | b.ForeOver, 0u);
    EXPECT_EQ(b.MaskColor, 0xC0C0C0u);
    EXPECT_EQ(b.palette.MaskRGB, kBlack);
}

TEST(GlintLayout, PlacesCaptionAndPicture) {
    struct Row {
        int position;
        GlintRect bounds, text, picture;
    };
    // 100 x 41, a picture of 20 x 10, a caption measured as 31 x 13.
    for (const Row& row : {
             Row{0, {24, 4, 92, 33}, {46, 16, 77, 29}, {22, 17, 42, 27}},
             Row{1, {4, 4, 72, 33}, {24, 16, 55, 29}, {59, 17, 79, 27}},
             Row{2, {4, 14, 92, 33}, {36, 21, 67, 34}, {41, 7, 61, 17}},
             Row{3, {4, 4, 92, 23}, {36, 9, 67, 22}, {41, 26, 61, 36}},
             Row{4, {4, 1, 92, 37}, {36, 14, 67, 27}, {41, 15, 61, 25}},
             Row{9, {0, 0, 0, 0}, {0, 0, 31, 13}, {5, 1, 25, 11}},
         }) {
        SCOPED_TRACE(row.position);
        const GlintSize client{100, 41}, picture{20, 10};
        const GlintRect bounds = captionBounds(row.position, client, picture);
        EXPECT_EQ(bounds, row.bounds);
        const GlintRect measured{bounds.left, bounds.top, bounds.left + 31, bounds.top + 13};
        const auto [dx, dy] = captionShift(row.position, client, picture, measured);
        const GlintRect text = measured.moved(dx, dy);
        EXPECT_EQ(text, row.text);
        EXPECT_EQ(picturePlace(row.position, client, picture, text, true), row.picture);
        EXPECT_EQ(picturePlace(row.position, client, picture, text, false),
                  (GlintRect{40, 15, 60, 25}));
    }
    // 28 x 10 in the middle of 100 x 40 would be at 36, 15.
    GlintRig rig;
    rig.button.Caption = "Quit";
    resize(rig.button, rig);
    EXPECT_EQ(rig.button.text, (GlintRect{38, 17, 66, 27}));
    // A caption wider than its button: -29 / 2 is cut towards zero.
    EXPECT_EQ(captionShift(0, {100, 41}, {}, {4, 4, 129, 17}).width, -14);
}

TEST(GlintLayout, ShapesTheWindowByStyle) {
    const auto outside = [](int style) {
        std::string pixels;
        for (const auto& [x, y] : pixelsOutside(style, {100, 40}))
            pixels += std::to_string(x) + "," + std::to_string(y) + " ";
        return pixels;
    };
    EXPECT_EQ(outside(3), "0,0 1,0 0,1 98,0 99,0 99,1 0,39 1,39 0,38 98,39 99,39 99,38 ");
    EXPECT_EQ(outside(14), "0,39 99,0 ");
    EXPECT_EQ(outside(11), "");
    EXPECT_EQ(contentRectangle(3, {100, 40}), (GlintRect{4, 4, 96, 36}));
    EXPECT_EQ(contentRectangle(11, {100, 40}), (GlintRect{3, 3, 97, 37}));
    EXPECT_EQ(contentRectangle(14, {100, 40}), (GlintRect{6, 6, 96, 36}));
    EXPECT_EQ(contentRectangle(2, {100, 40}), (GlintRect{0, 0, 100, 40}));
}

}  // namespace skylob::test
