#include "controls/GlintInteraction.h"

#include <gtest/gtest.h>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

constexpr GlintMouse kLeft{1, 2, 30, 10}, kRight{2, 0, 30, 10}, kNone{0, 0, 30, 10};

TEST(GlintInteraction, ClicksWithTheLeftButton) {
    GlintRig rig;
    rig.button.Enabled = true;
    rig.interaction.mouseDown(kLeft);
    rig.interaction.mouseUp(kLeft);
    rig.interaction.click();
    EXPECT_EQ(rig.taken(),
              "MouseDown 1 2 30 10;Redraw(2, false);MouseUp 1 2 30 10;"
              "Redraw(0, false);Redraw(0, true);Click;");
    EXPECT_FALSE(rig.button.Value);  // no check box
    rig.button.Enabled = false;
    rig.interaction.click();
    EXPECT_EQ(rig.taken(), "");
    rig.interaction.doubleClick();
    EXPECT_EQ(rig.taken(), "MouseDown 1 0 0 0;Redraw(2, false);capture mouse;");
}

TEST(GlintInteraction, ShowsNothingOfTheRightButton) {
    GlintRig rig;
    rig.button.Enabled = true;
    rig.interaction.mouseDown(kRight);
    rig.interaction.mouseMove(kRight);
    rig.interaction.mouseUp(kRight);
    rig.interaction.click();
    rig.interaction.doubleClick();
    rig.interaction.mouseMove({1 + 2, 0, 1, 1});
    EXPECT_EQ(rig.taken(),
              "MouseDown 2 0 30 10;MouseMove 2 0 30 10;MouseUp 2 0 30 10;MouseMove 3 0 1 1;");
    // Other buttons press, but do not click.
    rig.interaction.mouseDown({4, 0, 1, 1});
    rig.interaction.click();
    EXPECT_EQ(rig.taken(), "MouseDown 4 0 1 1;Redraw(2, false);");
}

TEST(GlintInteraction, HoversWhileThePointerIsInside) {
    GlintRig rig;
    rig.interaction.mouseMove(kNone);
    EXPECT_EQ(rig.taken(), "MouseMove 0 0 30 10;MouseIn;timer on;Redraw(0, true);MouseOver;");
    EXPECT_TRUE(rig.drawnOver);
    rig.interaction.mouseMove(kNone);
    rig.interaction.overTimerTick();
    EXPECT_EQ(rig.taken(), "MouseMove 0 0 30 10;");
    rig.inside = false;
    rig.interaction.overTimerTick();
    EXPECT_EQ(rig.taken(), "timer off;Redraw(0, true);MouseOut;");
    EXPECT_FALSE(rig.drawnOver);
    rig.interaction.mouseMove(kNone);  // over another window on top of the button
    EXPECT_EQ(rig.taken(), "MouseMove 0 0 30 10;Redraw(0, false);");
}

TEST(GlintInteraction, FollowsADragOffAndBackOn) {
    GlintRig rig;
    rig.interaction.mouseDown(kLeft);
    rig.taken();
    for (int move = 0; move < 2; ++move) {
        rig.interaction.mouseMove(kLeft);
        EXPECT_EQ(rig.taken(), "MouseMove 1 2 30 10;MouseIn;Redraw(2, false);");
        EXPECT_TRUE(rig.drawnOver && !rig.button.IsOver);
    }
    rig.inside = false;
    rig.interaction.mouseMove(kLeft);
    EXPECT_EQ(rig.taken(), "MouseMove 1 2 30 10;Redraw(0, false);");
}

TEST(GlintInteraction, ForgetsTheHoverInAClickThatMoves) {
    GlintRig rig;
    rig.button.Enabled = true;
    rig.interaction.mouseMove(kNone);
    rig.interaction.mouseDown(kLeft);
    rig.interaction.mouseMove(kLeft);
    rig.taken();
    rig.interaction.mouseUp(kLeft);
    rig.interaction.click();
    EXPECT_EQ(rig.taken(), "MouseUp 1 2 30 10;Redraw(0, false);Redraw(0, true);Click;");
    EXPECT_FALSE(rig.drawnOver);
    rig.interaction.mouseMove(kNone);  // the timer has gone on
    EXPECT_EQ(rig.taken(), "MouseMove 0 0 30 10;timer on;Redraw(0, true);MouseOver;");
    EXPECT_TRUE(rig.drawnOver);
}

TEST(GlintInteraction, TogglesTheFieldAlone) {
    GlintRig rig;
    rig.button.Enabled = rig.button.CheckBoxBehaviour = true;
    rig.interaction.accessKey();
    EXPECT_EQ(rig.taken(), "Redraw(0, true);Click;");
    EXPECT_TRUE(rig.button.Value);
    rig.interaction.keyDown(32, 0);
    rig.interaction.keyPress(32);
    rig.interaction.keyUp(32, 0);
    EXPECT_EQ(rig.taken(),
              "KeyDown 32 0;Redraw(2, false);KeyPress 32;KeyUp 32 0;Redraw(0, false);Click;");
    EXPECT_FALSE(rig.button.Value);
}

TEST(GlintInteraction, TakesOnlyAWholeSpace) {
    GlintRig rig;  // not even enabled: the space bar does not ask
    rig.interaction.keyDown(13, 1);
    rig.interaction.keyUp(13, 1);
    rig.interaction.keyUp(32, 0);
    EXPECT_EQ(rig.taken(), "KeyDown 13 1;KeyUp 13 1;KeyUp 32 0;");
    rig.interaction.keyDown(32, 0);
    rig.interaction.keyDown(65, 0);
    rig.interaction.keyUp(32, 0);
    EXPECT_EQ(rig.taken(), "KeyDown 32 0;Redraw(2, false);KeyDown 65 0;KeyUp 32 0;");
    rig.interaction.keyDown(256 + 32, 0);  // its low byte is a space's, it is none itself
    rig.interaction.keyUp(32, 0);
    EXPECT_EQ(rig.taken(), "KeyDown 288 0;KeyUp 32 0;Redraw(0, false);Click;");
}

TEST(GlintInteraction, RedrawsForFocusAndColoursAsItIs) {
    GlintRig rig;
    rig.interaction.keyDown(32, 0);
    rig.taken();
    // The space bar will come up elsewhere: the button stays pressed, with and without the focus.
    rig.interaction.lostFocus();
    EXPECT_FALSE(rig.button.HasFocus);
    rig.interaction.gotFocus();
    EXPECT_TRUE(rig.button.HasFocus);
    rig.interaction.ambientChanged();
    EXPECT_EQ(rig.taken(), "Redraw(2, true);Redraw(2, true);palette;Redraw(2, true);");
    rig.interaction.mouseMove(kNone);
    EXPECT_EQ(rig.button.currentState, kStateUp);
}

TEST(GlintInteraction, ShowsUpWithAPaletteOfItsOwn) {
    GlintRig rig;
    rig.button.ColorScheme = 4;
    rig.button.currentState = kStatePressed;
    rig.interaction.show();
    EXPECT_EQ(rig.taken(), "palette;Redraw(0, true);");
    EXPECT_EQ(rig.button.palette.FaceColour.bgr(), 0x302010u);
    rig.interaction.hide();
    EXPECT_FALSE(rig.button.IsShown);
    rig.button.ButtonType = 11;
    rig.interaction.show();  // the resize that the capture causes has no effect
    EXPECT_EQ(rig.taken(), "capture background;palette;Redraw(0, true);");
    EXPECT_TRUE(rig.button.IsShown && !rig.button.CaptureBusy);
}

}  // namespace skylob::test
