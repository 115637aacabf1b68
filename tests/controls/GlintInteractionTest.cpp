#include <gtest/gtest.h>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

using I = GlintInteraction;

constexpr GlintMouse kLeft{1, 2, 30, 10}, kRight{2, 0, 30, 10}, kNone{0, 0, 30, 10};

/// An enabled button.
struct GlintInteractionTest : testing::Test, GlintRig {
    GlintInteractionTest() { button.Enabled = true; }
};

TEST_F(GlintInteractionTest, ClicksWithTheLeftButton) {
    EXPECT_EQ(after(&I::mouseDown, kLeft), "MouseDown 1 2 30 10;Redraw 2 plain;");
    EXPECT_EQ(after(&I::mouseUp, kLeft), "MouseUp 1 2 30 10;Redraw 0 plain;");
    EXPECT_EQ(after(&I::click), "Redraw 0;Click;");  // not "on": it is no check box
    button.Enabled = false;
    EXPECT_EQ(after(&I::click), "");
    EXPECT_EQ(after(&I::doubleClick), "MouseDown 1 0 0 0;Redraw 2 plain;capture mouse;");
}

TEST_F(GlintInteractionTest, ShowsNothingOfTheRightButton) {
    EXPECT_EQ(after(&I::mouseDown, kRight), "MouseDown 2 0 30 10;");
    EXPECT_EQ(after(&I::mouseMove, kRight), "MouseMove 2 0 30 10;");
    EXPECT_EQ(after(&I::mouseUp, kRight), "MouseUp 2 0 30 10;");
    EXPECT_EQ(after(&I::click), "");
    EXPECT_EQ(after(&I::doubleClick), "");
    EXPECT_EQ(after(&I::mouseMove, {1 + 2, 0, 1, 1}), "MouseMove 3 0 1 1;");
    // Other buttons press, but do not click.
    EXPECT_EQ(after(&I::mouseDown, {4, 0, 1, 1}), "MouseDown 4 0 1 1;Redraw 2 plain;");
    EXPECT_EQ(after(&I::click), "");
}

TEST_F(GlintInteractionTest, HoversWhileThePointerIsInside) {
    EXPECT_EQ(after(&I::mouseMove, kNone),
              "MouseMove 0 0 30 10;MouseIn;timer on;Redraw 0 over;MouseOver;");
    EXPECT_EQ(after(&I::mouseMove, kNone), "MouseMove 0 0 30 10;");
    EXPECT_EQ(after(&I::overTimerTick), "");
    inside = false;
    EXPECT_EQ(after(&I::overTimerTick), "timer off;Redraw 0;MouseOut;");
    // Over another window on top of the button.
    EXPECT_EQ(after(&I::mouseMove, kNone), "MouseMove 0 0 30 10;Redraw 0 plain;");
}

TEST_F(GlintInteractionTest, FollowsADragOffAndBackOn) {
    after(&I::mouseDown, kLeft);
    for (int move = 0; move < 2; ++move) {
        EXPECT_EQ(after(&I::mouseMove, kLeft), "MouseMove 1 2 30 10;MouseIn;Redraw 2 plain over;");
        EXPECT_FALSE(button.IsOver);
    }
    inside = false;
    EXPECT_EQ(after(&I::mouseMove, kLeft), "MouseMove 1 2 30 10;Redraw 0 plain;");
}

TEST_F(GlintInteractionTest, ForgetsTheHoverInAClickThatMoves) {
    after(&I::mouseMove, kNone);
    after(&I::mouseDown, kLeft);
    after(&I::mouseMove, kLeft);
    EXPECT_EQ(after(&I::mouseUp, kLeft), "MouseUp 1 2 30 10;Redraw 0 plain;");
    EXPECT_EQ(after(&I::click), "Redraw 0;Click;");
    EXPECT_EQ(after(&I::mouseMove, kNone),  // the timer has gone on
              "MouseMove 0 0 30 10;timer on;Redraw 0 over;MouseOver;");
}

TEST_F(GlintInteractionTest, TogglesTheFieldAlone) {
    button.CheckBoxBehaviour = true;
    EXPECT_EQ(after(&I::accessKey), "Redraw 0 on;Click;");
    EXPECT_EQ(after(&I::keyDown, 32, 0), "KeyDown 32 0;Redraw 2 plain on;");
    EXPECT_EQ(after(&I::keyPress, 32), "KeyPress 32;");
    EXPECT_EQ(after(&I::keyUp, 32, 0), "KeyUp 32 0;Redraw 0 plain;Click;");
}

TEST_F(GlintInteractionTest, TakesOnlyAWholeSpace) {
    button.Enabled = false;  // the space bar does not ask
    EXPECT_EQ(after(&I::keyDown, 13, 1), "KeyDown 13 1;");
    EXPECT_EQ(after(&I::keyUp, 13, 1), "KeyUp 13 1;");
    EXPECT_EQ(after(&I::keyUp, 32, 0), "KeyUp 32 0;");
    EXPECT_EQ(after(&I::keyDown, 32, 0), "KeyDown 32 0;Redraw 2 plain;");
    EXPECT_EQ(after(&I::keyDown, 65, 0), "KeyDown 65 0;");
    EXPECT_EQ(after(&I::keyUp, 32, 0), "KeyUp 32 0;");
    // The low byte of this one is a space's, it is none itself.
    EXPECT_EQ(after(&I::keyDown, 256 + 32, 0), "KeyDown 288 0;");
    EXPECT_EQ(after(&I::keyUp, 32, 0), "KeyUp 32 0;Redraw 0 plain;Click;");
}

TEST_F(GlintInteractionTest, RedrawsForFocusAndColoursAsItIs) {
    after(&I::keyDown, 32, 0);
    // The space bar will come up elsewhere: the button stays pressed, with and without the focus.
    button.HasFocus = true;
    EXPECT_EQ(after(&I::lostFocus), "Redraw 2;");
    EXPECT_EQ(after(&I::gotFocus), "Redraw 2 focused;");
    EXPECT_EQ(after(&I::ambientChanged), "palette;Redraw 2 focused;");
    after(&I::mouseMove, kNone);
    EXPECT_EQ(button.currentState, 0);
}

TEST_F(GlintInteractionTest, ShowsUpWithAPaletteOfItsOwn) {
    button.ColorScheme = 4;
    button.currentState = 2;
    EXPECT_EQ(after(&I::show), "palette;Redraw 0;");
    EXPECT_EQ(button.palette.FaceColour.bgr(), 0x302010u);
    EXPECT_EQ(after(&I::hide), "");
    EXPECT_FALSE(button.IsShown);
    button.ButtonType = 11;
    EXPECT_EQ(after(&I::show),  // the resize that the capture causes has no effect
              "capture background;palette;Redraw 0;");
    EXPECT_TRUE(button.IsShown);
    EXPECT_FALSE(button.CaptureBusy);
}

}  // namespace skylob::test
