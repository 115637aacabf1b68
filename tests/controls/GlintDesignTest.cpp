#include "controls/GlintDesign.h"

#include <gtest/gtest.h>

#include <sstream>
#include <type_traits>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

/// A form that is one text, "KEY=value;" for each entry. Of fonts it keeps the name alone.
struct TextBag : PropertyBag {
    explicit TextBag(std::string form = {}) : text{std::move(form)} {}

    std::string readText(std::string_view key, const std::string& fallback) const override {
        std::istringstream entries{text};
        for (std::string entry; std::getline(entries, entry, ';');)
            if (entry.starts_with(std::string{key} + "=")) return entry.substr(key.size() + 1);
        return fallback;
    }
    std::int32_t readInteger(std::string_view key, std::int32_t fallback) const override {
        return std::stoi(readText(key, std::to_string(fallback)));
    }
    bool readBoolean(std::string_view key, bool fallback) const override {
        return readInteger(key, fallback) != 0;
    }
    GlintFont readFont(std::string_view key, const GlintFont& fallback) const override {
        return {.name = readText(key, fallback.name)};
    }
    void writeText(std::string_view key, const std::string& value) override {
        text += std::string{key} + "=" + value + ";";
    }
    void writeInteger(std::string_view key, std::int32_t value) override {
        writeText(key, std::to_string(value));
    }
    void writeBoolean(std::string_view key, bool value) override { writeInteger(key, value); }
    void writeFont(std::string_view key, const GlintFont& font) override {
        writeText(key, font.name);
    }

    std::string text;
};

static std::string written(const GlintRig& rig) {
    TextBag bag;
    rig.design.writeProperties(bag);
    return bag.text;
}

/// What setting a property sets off on a pressed button that is shown, and the entry that it
/// changes in the form.
template <typename Value>
static std::string effects(void (GlintDesign::*set)(Value),
                           const std::type_identity_t<Value>& value) {
    GlintRig rig;
    rig.button.IsShown = true;
    rig.button.currentState = 2;
    std::istringstream before{written(rig)};
    (rig.design.*set)(value);
    std::istringstream after{written(rig)};
    std::string all = rig.taken();
    for (std::string was, is; std::getline(before, was, ';') && std::getline(after, is, ';');)
        if (is != was) all += " " + is;
    return all;
}

TEST(GlintDesign, SetsOffItsEffectsInOrder) {
    using D = GlintDesign;
    EXPECT_EQ(effects(&D::setBackColor, 1), "palette;Redraw(2, true);mark BCOL; BCOL=1");
    EXPECT_EQ(effects(&D::setBackOver, 2), "Redraw(2, true);mark BCOLO; BCOLO=2");
    EXPECT_EQ(effects(&D::setForeColor, 3), "palette;Redraw(2, true);mark FCOL; FCOL=3");
    EXPECT_EQ(effects(&D::setForeOver, 4), "Redraw(2, true);mark FCOLO; FCOLO=4");
    EXPECT_EQ(effects(&D::setMaskColor, 5), "Redraw(2, true);mark MCOL; MCOL=5");
    EXPECT_EQ(effects(&D::setButtonType, 3),
              "layout;region 12;Redraw(2, true);mark BTYPE; BTYPE=3");
    EXPECT_EQ(effects(&D::setButtonType, 11),
              "capture background;layout;region 0;Redraw(2, true);mark BTYPE; BTYPE=11");
    EXPECT_EQ(effects(&D::setCaption, "&Go"), "access key;layout;Redraw(2, true);mark TX; TX=&Go");
    EXPECT_EQ(effects(&D::setEnabled, true), "Redraw(0, true);enabled;mark ENAB; ENAB=1");
    EXPECT_EQ(effects(&D::setFont, {.name = "Sans"}),
              "font;layout;Redraw(2, true);mark FONT; FONT=Sans");
    EXPECT_EQ(effects(&D::setFontName, "Sans"), "font;layout;Redraw(2, true); FONT=Sans");
    EXPECT_EQ(effects(&D::setColorScheme, 3), "palette;Redraw(0, true);mark COLTYPE; COLTYPE=3");
    EXPECT_EQ(effects(&D::setShowFocusRect, true), "mark FOCUSR; FOCUSR=1");
    EXPECT_EQ(effects(&D::setMousePointer, 2), "pointer;mark MPTR; MPTR=2");
    EXPECT_EQ(effects(&D::setMouseIcon, "i"), "icon;mark MICON; MICON=i");
    EXPECT_EQ(effects(&D::setSoftBevel, true), "Redraw(2, true);mark SOFT; SOFT=1");
    EXPECT_EQ(effects(&D::setPictureNormal, "p"),
              "measure;layout;Redraw(2, true);mark PICN; PICN=p");
    EXPECT_EQ(effects(&D::setPicturePosition, 1), "mark PICPOS;layout;Redraw(2, true); PICPOS=1");
    EXPECT_EQ(effects(&D::setSpecialEffect, 2), "Redraw(2, true);mark FX; FX=2");
    EXPECT_EQ(effects(&D::setCheckBoxBehaviour, true), "mark CHECK; CHECK=1");
    // These are drawn only where they show.
    EXPECT_EQ(effects(&D::setUseMaskColor, true), "mark UMCOL; UMCOL=1");
    EXPECT_EQ(effects(&D::setUseGreyscale, true), "mark NGREY; NGREY=1");
    EXPECT_EQ(effects(&D::setPictureOver, "x"), "mark PICO; PICH=x");
    EXPECT_EQ(effects(&D::setValue, true), "mark VALUE; VALUE=1");
    GlintRig rig;
    rig.button.PictureNormal = "x";
    rig.button.IsOver = rig.button.CheckBoxBehaviour = true;
    rig.button.currentState = 2;
    rig.design.setUseMaskColor(true);
    rig.design.setUseGreyscale(true);
    rig.design.setPictureOver("y");
    rig.design.setValue(true);
    EXPECT_EQ(rig.taken(),
              "Redraw(2, true);mark UMCOL;Redraw(2, true);mark NGREY;"
              "Redraw(2, true);mark PICO;Redraw(0, true);mark VALUE;");
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

TEST(GlintDesign, ComesFromItsFormAndGoesBack) {
    const std::string form =
        "BTYPE=3;TX=&Go;ENAB=0;FONT=Sans;COLTYPE=2;FOCUSR=0;BCOL=-2147483635;BCOLO=1;FCOL=2;"
        "FCOLO=3;MCOL=4;MPTR=5;MICON=i;PICN=n;PICH=h;UMCOL=0;SOFT=1;PICPOS=4;NGREY=1;FX=2;"
        "CHECK=1;VALUE=1;";
    GlintRig rig;
    rig.design.readProperties(TextBag{form});
    EXPECT_EQ(rig.taken(), "font;pointer;icon;disabled;measure;layout;access key;");
    EXPECT_EQ(written(rig), form);
    rig.design.readProperties(TextBag{});
    EXPECT_EQ(written(rig),
              "BTYPE=2;TX=;ENAB=1;FONT=Ambient;COLTYPE=1;FOCUSR=1;BCOL=12632256;BCOLO=12632256;"
              "FCOL=0;FCOLO=0;MCOL=12632256;MPTR=0;MICON=;PICN=;PICH=;UMCOL=1;SOFT=0;PICPOS=0;"
              "NGREY=0;FX=0;CHECK=0;VALUE=0;");
    rig.design.readProperties(TextBag{"BCOL=7;FCOL=8;"});  // hovering colours follow
    EXPECT_EQ(rig.button.BackOver, 7u);
    EXPECT_EQ(rig.button.ForeOver, 8u);
}

TEST(GlintDesign, TakesHoverColoursAlongOnlyAtDesignTime) {
    using Colours = std::vector<std::uint32_t>;  // first the faces', then the captions'
    GlintRig rig;
    const auto over = [&] { return Colours{rig.button.BackOver, rig.button.ForeOver}; };
    const auto drawn = [&] {
        const GlintPalette& palette = rig.button.palette;
        return Colours{palette.FaceOverColour.bgr(), palette.TextOverColour.bgr(),
                       palette.MaskRGB.bgr()};
    };
    rig.button.ColorScheme = 2;
    rig.design.setBackColor(0x111111);
    rig.design.setForeColor(0x222222);
    EXPECT_EQ(over(), (Colours{0, 0}));
    EXPECT_EQ(rig.button.palette.FaceColour.bgr(), 0x111111u);
    EXPECT_EQ(rig.button.palette.TextColour.bgr(), 0x222222u);
    rig.userMode = false;
    rig.design.setBackColor(0x333333);
    rig.design.setForeColor(0x444444);
    EXPECT_EQ(over(), (Colours{0x333333, 0x444444}));
    EXPECT_EQ(drawn(), (Colours{0x333333, 0x444444, 0}));
    // The palette learns of these only when it is made anew.
    rig.design.setBackOver(0x555555);
    rig.design.setForeOver(0x777777);
    rig.design.setMaskColor(0x666666);
    EXPECT_EQ(drawn(), (Colours{0x333333, 0x444444, 0}));
    rig.interaction.ambientChanged();
    EXPECT_EQ(drawn(), (Colours{0x555555, 0x777777, 0x666666}));
}

TEST(GlintDesign, PlacesANewButtonBlackOnBlack) {
    GlintRig rig;
    rig.design.initialiseProperties();
    EXPECT_EQ(rig.taken(), "font;palette;layout;");
    EXPECT_EQ(written(rig),
              "BTYPE=14;TX=cmdNew;ENAB=1;FONT=Ambient;COLTYPE=2;FOCUSR=1;BCOL=0;BCOLO=0;FCOL=0;"
              "FCOLO=0;MCOL=12632256;MPTR=0;MICON=;PICN=;PICH=;UMCOL=1;SOFT=0;PICPOS=0;NGREY=0;"
              "FX=0;CHECK=0;VALUE=0;");
    EXPECT_EQ(rig.button.palette.MaskRGB, kBlack);
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
    EXPECT_EQ(picturePlace(0, {101, 40}, {20, 11}, {}, false), (GlintRect{40, 14, 60, 25}));
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
