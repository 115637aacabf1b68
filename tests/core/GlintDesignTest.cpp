#include "controls/GlintDesign.h"

#include <gtest/gtest.h>

#include <functional>

#include "controls/GlintLayout.h"
#include "tests/support/GlintFakes.h"

namespace skylob {
namespace {

using test::GlintRig;
using test::MemoryBag;
using Log = GlintRig::Log;

constexpr const char* kAllKeys =
    "BTYPE TX ENAB FONT COLTYPE FOCUSR BCOL BCOLO FCOL FCOLO MCOL MPTR MICON PICN PICH UMCOL SOFT "
    "PICPOS NGREY FX CHECK VALUE ";

TEST(GlintDesign, SetsOffItsEffectsInOrder) {
    struct Row {
        const char* property;
        std::function<void(GlintDesign&)> set;
        Log expected;
    };
    const std::string redraw = "Redraw(2, true)", normal = "Redraw(0, true)";
    for (const Row& row : std::initializer_list<Row>{
             {"BackColor", [](auto& d) { d.setBackColor(1); }, {"palette", redraw, "mark BCOL"}},
             {"BackOver", [](auto& d) { d.setBackOver(1); }, {redraw, "mark BCOLO"}},
             {"ForeColor", [](auto& d) { d.setForeColor(1); }, {"palette", redraw, "mark FCOL"}},
             {"ForeOver", [](auto& d) { d.setForeOver(1); }, {redraw, "mark FCOLO"}},
             {"MaskColor", [](auto& d) { d.setMaskColor(1); }, {redraw, "mark MCOL"}},
             {"ButtonType",
              [](auto& d) { d.setButtonType(3); },
              {"layout", "region 12", redraw, "mark BTYPE"}},
             {"ButtonType 11",
              [](auto& d) { d.setButtonType(11); },
              {"capture background", "layout", "region 0", redraw, "mark BTYPE"}},
             {"Caption",
              [](auto& d) { d.setCaption("x"); },
              {"access key", "layout", redraw, "mark TX"}},
             {"Enabled", [](auto& d) { d.setEnabled(false); }, {normal, "disabled", "mark ENAB"}},
             {"Font", [](auto& d) { d.setFont({}); }, {"font", "layout", redraw, "mark FONT"}},
             {"FontBold", [](auto& d) { d.setFontBold(true); }, {"font", "layout", redraw}},
             {"FontItalic", [](auto& d) { d.setFontItalic(true); }, {"font", "layout", redraw}},
             {"FontUnderline",
              [](auto& d) { d.setFontUnderline(true); },
              {"font", "layout", redraw}},
             {"FontSize", [](auto& d) { d.setFontSize(9); }, {"font", "layout", redraw}},
             {"FontName", [](auto& d) { d.setFontName("x"); }, {"font", "layout", redraw}},
             {"ColorScheme",
              [](auto& d) { d.setColorScheme(3); },
              {"palette", normal, "mark COLTYPE"}},
             {"ShowFocusRect", [](auto& d) { d.setShowFocusRect(true); }, {"mark FOCUSR"}},
             {"MousePointer", [](auto& d) { d.setMousePointer(2); }, {"pointer", "mark MPTR"}},
             {"MouseIcon", [](auto& d) { d.setMouseIcon("x"); }, {"icon", "mark MICON"}},
             {"SoftBevel", [](auto& d) { d.setSoftBevel(true); }, {redraw, "mark SOFT"}},
             {"UseMaskColor without a picture",
              [](auto& d) { d.setUseMaskColor(true); },
              {"mark UMCOL"}},
             {"UseGreyscale without a picture",
              [](auto& d) { d.setUseGreyscale(true); },
              {"mark NGREY"}},
             {"PictureOver while away", [](auto& d) { d.setPictureOver("x"); }, {"mark PICO"}},
             {"PictureNormal",
              [](auto& d) { d.setPictureNormal("x"); },
              {"measure", "layout", redraw, "mark PICN"}},
             {"PicturePosition",
              [](auto& d) { d.setPicturePosition(1); },
              {"mark PICPOS", "layout", redraw}},
             {"SpecialEffect", [](auto& d) { d.setSpecialEffect(1); }, {redraw, "mark FX"}},
             {"Value of a push button", [](auto& d) { d.setValue(true); }, {"mark VALUE"}},
             {"CheckBoxBehaviour", [](auto& d) { d.setCheckBoxBehaviour(true); }, {"mark CHECK"}},
         }) {
        SCOPED_TRACE(row.property);
        GlintRig rig;
        rig.button.IsShown = true;
        rig.button.currentState = kStatePressed;
        row.set(rig.design);
        EXPECT_EQ(rig.taken(), row.expected);
    }
}

TEST(GlintDesign, RedrawsSomePropertiesOnlyWhereTheyShow) {
    GlintRig rig;
    rig.button.PictureNormal = "x";
    rig.button.IsOver = true;
    rig.button.CheckBoxBehaviour = true;
    rig.button.currentState = kStatePressed;
    rig.design.setUseMaskColor(true);
    rig.design.setUseGreyscale(true);
    rig.design.setPictureOver("y");
    rig.design.setValue(true);
    EXPECT_EQ(rig.taken(), (Log{"Redraw(2, true)", "mark UMCOL", "Redraw(2, true)", "mark NGREY",
                                "Redraw(2, true)", "mark PICO", "Redraw(0, true)", "mark VALUE"}));
    EXPECT_TRUE(rig.button.Value);
    EXPECT_EQ(rig.button.currentState, kStateUp);
    // Not shown, a button has nothing behind it to capture.
    rig.design.setButtonType(11);
    EXPECT_EQ(rig.taken(), (Log{"layout", "region 0", "Redraw(0, true)", "mark BTYPE"}));
    rig.client = {0, 40};
    rig.design.setButtonType(14);
    EXPECT_EQ(rig.taken(), (Log{"layout", "region 2", "mark BTYPE"}));
    EXPECT_STREQ(GlintDesign::Version, "w2005.08.15");
}

TEST(GlintDesign, TakesHoverColoursAlongOnlyAtDesignTime) {
    GlintRig rig;
    rig.button.ColorScheme = 2;
    rig.design.setBackColor(0x111111);
    rig.design.setForeColor(0x222222);
    EXPECT_EQ(rig.button.BackOver, 0u);
    EXPECT_EQ(rig.button.ForeOver, 0u);
    EXPECT_EQ(rig.button.palette.FaceColour, 0x111111u);
    rig.userMode = false;
    rig.design.setBackColor(0x333333);
    rig.design.setForeColor(0x444444);
    EXPECT_EQ(rig.button.BackOver, 0x333333u);
    EXPECT_EQ(rig.button.ForeOver, 0x444444u);
    // The palette learns of these only when it is made anew.
    rig.design.setBackOver(0x555555);
    rig.design.setMaskColor(0x666666);
    EXPECT_EQ(rig.button.palette.FaceOverColour, 0x333333u);
    EXPECT_EQ(rig.button.palette.MaskRGB, 0u);
    rig.interaction.ambientChanged();
    EXPECT_EQ(rig.button.palette.FaceOverColour, 0x555555u);
    EXPECT_EQ(rig.button.palette.MaskRGB, 0x666666u);
}

TEST(GlintDesign, PlacesANewButtonBlackOnBlack) {
    GlintRig rig;
    rig.design.initialiseProperties();
    const GlintState& b = rig.button;
    EXPECT_TRUE(b.Enabled && b.ShowFocusRect && b.UseMaskColor);
    EXPECT_FALSE(b.UseGreyscale || b.SoftBevel || b.CheckBoxBehaviour || b.Value);
    EXPECT_EQ(b.Caption, "cmdNew");
    EXPECT_EQ(rig.surfaceFont.name, "Ambient");
    EXPECT_EQ(b.ButtonType, 14);
    EXPECT_EQ(b.ColorScheme, 2);
    EXPECT_EQ(b.BackColor | b.BackOver | b.ForeColor | b.ForeOver, 0u);
    EXPECT_EQ(b.MaskColor, 0xC0C0C0u);
    EXPECT_EQ(b.palette.MaskRGB, 0u);
    EXPECT_EQ(rig.taken(), (Log{"font", "palette", "layout"}));
}

TEST(GlintDesign, ReadsAnEmptyBagWithItsDefaults) {
    GlintRig rig;
    const MemoryBag bag;
    rig.design.readProperties(bag);
    const GlintState& b = rig.button;
    EXPECT_EQ(bag.keys, kAllKeys);
    EXPECT_EQ(b.ButtonType, 2);
    EXPECT_EQ(b.ColorScheme, 1);
    EXPECT_EQ(b.Caption, "");
    EXPECT_TRUE(b.Enabled && b.ShowFocusRect && b.UseMaskColor);
    EXPECT_FALSE(b.SoftBevel || b.UseGreyscale || b.CheckBoxBehaviour || b.Value);
    EXPECT_EQ(b.BackColor, 0xC0C0C0u);
    EXPECT_EQ(b.BackOver, 0xC0C0C0u);
    EXPECT_EQ(b.ForeColor | b.ForeOver, 0u);
    EXPECT_EQ(b.MaskColor, 0xC0C0C0u);
    EXPECT_EQ(rig.surfaceFont.name, "Ambient");
    EXPECT_EQ(rig.taken(),
              (Log{"font", "pointer", "icon", "enabled", "measure", "layout", "access key"}));
    EXPECT_EQ(b.palette, GlintPalette{});
}

TEST(GlintDesign, WritesWhatItReads) {
    GlintRig rig;
    MemoryBag bag;
    bag.values = {{"BTYPE", 3},
                  {"TX", std::string{"&Go"}},
                  {"ENAB", false},
                  {"FONT", GlintFont{"Sans", 16, true, false, true}},
                  {"COLTYPE", 4},
                  {"FOCUSR", false},
                  {"BCOL", static_cast<std::int32_t>(0x8000000D)},
                  {"FCOL", 0x0000FF},
                  {"MCOL", 7},
                  {"MPTR", 5},
                  {"MICON", std::string{"hand"}},
                  {"PICN", std::string{"shell"}},
                  {"PICH", std::string{"bin"}},
                  {"UMCOL", false},
                  {"SOFT", true},
                  {"PICPOS", 4},
                  {"NGREY", true},
                  {"FX", 9},
                  {"CHECK", true},
                  {"VALUE", true}};
    rig.design.readProperties(bag);
    EXPECT_EQ(rig.button.BackOver, 0x8000000Du);  // what BackColor is, not the system's face
    EXPECT_EQ(rig.button.ForeOver, 0x0000FFu);
    EXPECT_EQ(rig.button.PictureOver, "bin");
    EXPECT_EQ(rig.button.picture, (GlintSize{16, 12}));
    MemoryBag written;
    rig.design.writeProperties(written);
    EXPECT_EQ(written.keys, kAllKeys);
    bag.values.insert({{"BCOLO", static_cast<std::int32_t>(0x8000000D)}, {"FCOLO", 0x0000FF}});
    EXPECT_EQ(written.values, bag.values);
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
    // A caption wider than its button: -29 / 2 is cut towards zero.
    EXPECT_EQ(captionShift(0, {100, 41}, {}, {4, 4, 129, 17}).width, -14);
}

TEST(GlintLayout, ShapesTheWindowByStyle) {
    using Pixels = std::vector<GlintPixel>;
    EXPECT_EQ(pixelsOutside(3, {100, 40}), (Pixels{{0, 0},
                                                   {1, 0},
                                                   {0, 1},
                                                   {98, 0},
                                                   {99, 0},
                                                   {99, 1},
                                                   {0, 39},
                                                   {1, 39},
                                                   {0, 38},
                                                   {98, 39},
                                                   {99, 39},
                                                   {99, 38}}));
    EXPECT_EQ(pixelsOutside(14, {100, 40}), (Pixels{{0, 39}, {99, 0}}));
    EXPECT_TRUE(pixelsOutside(11, {100, 40}).empty());
    EXPECT_EQ(contentRectangle(3, {100, 40}), (GlintRect{4, 4, 96, 36}));
    EXPECT_EQ(contentRectangle(11, {100, 40}), (GlintRect{3, 3, 97, 37}));
    EXPECT_EQ(contentRectangle(14, {100, 40}), (GlintRect{6, 6, 96, 36}));
    EXPECT_EQ(contentRectangle(2, {100, 40}), (GlintRect{0, 0, 100, 40}));
}

}  // namespace
}  // namespace skylob
