#include "controls/GlintInteraction.h"

#include <gtest/gtest.h>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

using I = GlintInteraction;

constexpr GlintMouse kLeft{1, 2, 30, 10}, kRight{2, 0, 30, 10}, kNone{0, 0, 30, 10};

TEST(GlintInteraction, ClicksWithTheLeftButton) {
    GlintRig rig;
    rig.button.Enabled = true;
    EXPECT_EQ(rig.after(&I::mouseDown, kLeft), "MouseDown 1 2 30 10;Redraw(2, false);");
    EXPECT_EQ(rig.after(&I::mouseUp, kLeft), "MouseUp 1 2 30 10;Redraw(0, false);");
    EXPECT_EQ(rig.after(&I::click), "Redraw(0, true);Click;");
    EXPECT_FALSE(rig.button.Value);  // no check box
    rig.button.Enabled = false;
    EXPECT_EQ(rig.after(&I::click), "");
    EXPECT_EQ(rig.after(&I::doubleClick), "MouseDown 1 0 0 0;Redraw(2, false);capture mouse;");
}

TEST(GlintInteraction, ShowsNothingOfTheRightButton) {
    GlintRig rig;
    rig.button.Enabled = true;
    EXPECT_EQ(rig.after(&I::mouseDown, kRight), "MouseDown 2 0 30 10;");
    EXPECT_EQ(rig.after(&I::mouseMove, kRight), "MouseMove 2 0 30 10;");
    EXPECT_EQ(rig.after(&I::mouseUp, kRight), "MouseUp 2 0 30 10;");
    EXPECT_EQ(rig.after(&I::click), "");
    EXPECT_EQ(rig.after(&I::doubleClick), "");
    EXPECT_EQ(rig.after(&I::mouseMove, {1 + 2, 0, 1, 1}), "MouseMove 3 0 1 1;");
    // Other buttons press, but do not click.
    EXPECT_EQ(rig.after(&I::mouseDown, {4, 0, 1, 1}), "MouseDown 4 0 1 1;Redraw(2, false);");
    EXPECT_EQ(rig.after(&I::click), "");
}

TEST(GlintInteraction, HoversWhileThePointerIsInside) {
    GlintRig rig;
    EXPECT_EQ(rig.after(&I::mouseMove, kNone),
              "MouseMove 0 0 30 10;MouseIn;timer on;Redraw(0, true);MouseOver;");
    EXPECT_TRUE(rig.drawnOver);
    EXPECT_EQ(rig.after(&I::mouseMove, kNone), "MouseMove 0 0 30 10;");
    EXPECT_EQ(rig.after(&I::overTimerTick), "");
    rig.inside = false;
    EXPECT_EQ(rig.after(&I::overTimerTick), "timer off;Redraw(0, true);MouseOut;");
    EXPECT_FALSE(rig.drawnOver);
    // Over another window on top of the button.
    EXPECT_EQ(rig.after(&I::mouseMove, kNone), "MouseMove 0 0 30 10;Redraw(0, false);");
}

TEST(GlintInteraction, FollowsADragOffAndBackOn) {
    GlintRig rig;
    rig.after(&I::mouseDown, kLeft);
    for (int move = 0; move < 2; ++move) {
        EXPECT_EQ(rig.after(&I::mouseMove, kLeft), "MouseMove 1 2 30 10;MouseIn;Redraw(2, false);");
        EXPECT_TRUE(rig.drawnOver);
        EXPECT_FALSE(rig.button.IsOver);
    }
    rig.inside = false;
    EXPECT_EQ(rig.after(&I::mouseMove, kLeft), "MouseMove 1 2 30 10;Redraw(0, false);");
}

TEST(GlintInteraction, ForgetsTheHoverInAClickThatMoves) {
    GlintRig rig;
    rig.button.Enabled = true;
    rig.after(&I::mouseMove, kNone);
    rig.after(&I::mouseDown, kLeft);
    rig.after(&I::mouseMove, kLeft);
    EXPECT_EQ(rig.after(&I::mouseUp, kLeft), "MouseUp 1 2 30 10;Redraw(0, false);");
    EXPECT_EQ(rig.after(&I::click), "Redraw(0, true);Click;");
    EXPECT_FALSE(rig.drawnOver);
    EXPECT_EQ(rig.after(&I::mouseMove, kNone),  // the timer has gone on
              "MouseMove 0 0 30 10;timer on;Redraw(0, true);MouseOver;");
    EXPECT_TRUE(rig.drawnOver);
}

TEST(GlintInteraction, TogglesTheFieldAlone) {
    GlintRig rig;
    rig.button.Enabled = rig.button.CheckBoxBehaviour = true;
    EXPECT_EQ(rig.after(&I::accessKey), "Redraw(0, true);Click;");
    EXPECT_TRUE(rig.button.Value);
    EXPECT_TRUE(rig.drawnValue);
    EXPECT_EQ(rig.after(&I::keyDown, 32, 0), "KeyDown 32 0;Redraw(2, false);");
    EXPECT_EQ(rig.after(&I::keyPress, 32), "KeyPress 32;");
    EXPECT_EQ(rig.after(&I::keyUp, 32, 0), "KeyUp 32 0;Redraw(0, false);Click;");
    EXPECT_FALSE(rig.button.Value);
    EXPECT_FALSE(rig.drawnValue);
}

TEST(GlintInteraction, TakesOnlyAWholeSpace) {
    GlintRig rig;  // not even enabled: the space bar does not ask
    EXPECT_EQ(rig.after(&I::keyDown, 13, 1), "KeyDown 13 1;");
    EXPECT_EQ(rig.after(&I::keyUp, 13, 1), "KeyUp 13 1;");
    EXPECT_EQ(rig.after(&I::keyUp, 32, 0), "KeyUp 32 0;");
    EXPECT_EQ(rig.after(&I::keyDown, 32, 0), "KeyDown 32 0;Redraw(2, false);");
    EXPECT_EQ(rig.after(&I::keyDown, 65, 0), "KeyDown 65 0;");
    EXPECT_EQ(rig.after(&I::keyUp, 32, 0), "KeyUp 32 0;");
    // The low byte of this one is a space's, it is none itself.
    EXPECT_EQ(rig.after(&I::keyDown, 256 + 32, 0), "KeyDown 288 0;");
    EXPECT_EQ(rig.after(&I::keyUp, 32, 0), "KeyUp 32 0;Redraw(0, false);Click;");
}

TEST(GlintInteraction, RedrawsForFocusAndColoursAsItIs) {
    GlintRig rig;
    rig.after(&I::keyDown, 32, 0);
    // The space bar will come up elsewhere: the button stays pressed, with and without the focus.
    EXPECT_EQ(rig.after(&I::lostFocus), "Redraw(2, true);");
    EXPECT_FALSE(rig.button.HasFocus);
    EXPECT_EQ(rig.after(&I::gotFocus), "Redraw(2, true);");
    EXPECT_TRUE(rig.button.HasFocus);
    EXPECT_EQ(rig.after(&I::ambientChanged), "palette;Redraw(2, true);");
    rig.after(&I::mouseMove, kNone);
    EXPECT_EQ(rig.button.currentState, 0);
}

TEST(GlintInteraction, ShowsUpWithAPaletteOfItsOwn) {
    GlintRig rig;
    rig.button.ColorScheme = 4;
    rig.button.currentState = 2;
    EXPECT_EQ(rig.after(&I::show), "palette;Redraw(0, true);");
    EXPECT_EQ(rig.button.palette.FaceColour.bgr(), 0x302010u);
    EXPECT_EQ(rig.after(&I::hide), "");
    EXPECT_FALSE(rig.button.IsShown);
    rig.button.ButtonType = 11;
    EXPECT_EQ(rig.after(&I::show),  // the resize that the capture causes has no effect
              "capture background;palette;Redraw(0, true);");
    EXPECT_TRUE(rig.button.IsShown);
    EXPECT_FALSE(rig.button.CaptureBusy);
}

}  // namespace skylob::test
