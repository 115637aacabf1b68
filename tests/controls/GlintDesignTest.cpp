#include <gtest/gtest.h>

#include "tests/support/GlintFakes.h"

namespace skylob::test {

/// A form that is one text, "KEY=value;" for each entry. Of fonts it keeps the name alone.
struct TextBag : PropertyBag {
    using Key = std::string_view;
    using Text = const std::string&;

    explicit TextBag(std::string form = {}) : text{std::move(form)} {}

    std::string readText(Key key, Text fallback) const override {
        std::istringstream entries{text};
        for (std::string entry; std::getline(entries, entry, ';');)
            if (entry.starts_with(std::string{key} + "=")) return entry.substr(key.size() + 1);
        return fallback;
    }
    int readInteger(Key key, int fallback) const override {
        return std::stoi(readText(key, std::to_string(fallback)));
    }
    bool readBoolean(Key key, bool other) const override { return readInteger(key, other) != 0; }
    GlintFont readFont(Key key, const GlintFont& fallback) const override {
        return {.name = readText(key, fallback.name)};
    }
    void writeText(Key key, Text value) override { text.append(key).append("=" + value + ";"); }
    void writeInteger(Key key, int value) override { writeText(key, std::to_string(value)); }
    void writeBoolean(Key key, bool value) override { writeInteger(key, value); }
    void writeFont(Key key, const GlintFont& font) override { writeText(key, font.name); }

    std::string text;
};

struct GlintDesignTest : testing::Test, GlintRig {
    std::string written() const {
        TextBag bag;
        design.writeProperties(bag);
        return bag.text;
    }

    /// What setting a property sets off on a button that was pressed.
    template <typename Value>
    std::string effects(void (GlintDesign::*set)(Value), const std::type_identity_t<Value>& value) {
        button.currentState = 2;
        (design.*set)(value);
        return taken();
    }
};

TEST_F(GlintDesignTest, SetsOffItsEffectsInOrder) {
    using D = GlintDesign;
    button.IsShown = true;
    EXPECT_EQ(effects(&D::setBackColor, 1), "palette;Redraw 2;mark BCOL;");
    EXPECT_EQ(effects(&D::setBackOver, 2), "Redraw 2;mark BCOLO;");
    EXPECT_EQ(effects(&D::setForeColor, 3), "palette;Redraw 2;mark FCOL;");
    EXPECT_EQ(effects(&D::setForeOver, 4), "Redraw 2;mark FCOLO;");
    EXPECT_EQ(effects(&D::setMaskColor, 5), "Redraw 2;mark MCOL;");
    EXPECT_EQ(effects(&D::setButtonType, 11),
              "capture background;layout;region 0;Redraw 2;mark BTYPE;");
    EXPECT_EQ(effects(&D::setButtonType, 3), "layout;region 12;Redraw 2;mark BTYPE;");
    EXPECT_EQ(effects(&D::setCaption, "&Go"), "access key;layout;Redraw 2;mark TX;");
    EXPECT_EQ(effects(&D::setEnabled, true), "Redraw 0;enabled;mark ENAB;");
    EXPECT_EQ(effects(&D::setFontName, "Serif"), "font;layout;Redraw 2;");
    EXPECT_EQ(effects(&D::setFont, {.name = "Sans"}), "font;layout;Redraw 2;mark FONT;");
    EXPECT_EQ(effects(&D::setColorScheme, 3), "palette;Redraw 0;mark COLTYPE;");
    EXPECT_EQ(effects(&D::setShowFocusRect, true), "mark FOCUSR;");
    EXPECT_EQ(effects(&D::setMousePointer, 2), "pointer;mark MPTR;");
    EXPECT_EQ(effects(&D::setMouseIcon, "i"), "icon;mark MICON;");
    EXPECT_EQ(effects(&D::setSoftBevel, true), "Redraw 2;mark SOFT;");
    EXPECT_EQ(effects(&D::setPicturePosition, 1), "mark PICPOS;layout;Redraw 2;");
    EXPECT_EQ(effects(&D::setSpecialEffect, 6), "Redraw 2;mark FX;");
    // These are drawn only where they show.
    EXPECT_EQ(effects(&D::setUseMaskColor, true), "mark UMCOL;");
    EXPECT_EQ(effects(&D::setUseGreyscale, true), "mark NGREY;");
    EXPECT_EQ(effects(&D::setPictureOver, "x"), "mark PICO;");
    EXPECT_EQ(effects(&D::setValue, true), "mark VALUE;");
    EXPECT_EQ(effects(&D::setPictureNormal, "p"), "measure;layout;Redraw 2 on;mark PICN;");
    EXPECT_EQ(effects(&D::setCheckBoxBehaviour, true), "mark CHECK;");
    EXPECT_EQ(written(),
              "BTYPE=3;TX=&Go;ENAB=1;FONT=Sans;COLTYPE=3;FOCUSR=1;BCOL=1;BCOLO=2;FCOL=3;FCOLO=4;"
              "MCOL=5;MPTR=2;MICON=i;PICN=p;PICH=x;UMCOL=1;SOFT=1;PICPOS=1;NGREY=1;FX=6;CHECK=1;"
              "VALUE=1;");
    button.IsOver = true;
    EXPECT_EQ(effects(&D::setUseMaskColor, false), "Redraw 2 over on;mark UMCOL;");
    EXPECT_EQ(effects(&D::setUseGreyscale, false), "Redraw 2 over on;mark NGREY;");
    EXPECT_EQ(effects(&D::setPictureOver, "y"), "Redraw 2 over on;mark PICO;");
    EXPECT_EQ(effects(&D::setValue, false), "Redraw 0 over;mark VALUE;");
    button.IsShown = false;  // it has nothing behind it to capture
    EXPECT_EQ(effects(&D::setButtonType, 11), "layout;region 0;Redraw 2 over;mark BTYPE;");
    client = {0, 40};
    EXPECT_EQ(effects(&D::setButtonType, 14), "layout;region 2;mark BTYPE;");
    design.setFontName("Serif");
    design.setFontSize(9);
    for (const auto set : {&D::setFontBold, &D::setFontItalic, &D::setFontUnderline})
        (design.*set)(true);
    EXPECT_EQ(surfaceFont, (GlintFont{"Serif", 9, true, true, true}));
    surfaceFont = {"Mono", 7, false, true, false};
    EXPECT_EQ(design.Font(), surfaceFont);
    EXPECT_EQ(std::tuple(design.FontName(), design.FontSize()), std::tuple("Mono", 7.0F));
    EXPECT_EQ(std::tuple(design.FontBold(), design.FontItalic(), design.FontUnderline()),
              std::tuple(false, true, false));
    surfaceFont = {"Mono", 7, true, false, true};
    EXPECT_EQ(std::tuple(design.FontBold(), design.FontItalic(), design.FontUnderline()),
              std::tuple(true, false, true));
    EXPECT_EQ(std::tuple(design.MousePointer(), design.MouseIcon(), design.hwnd()),
              std::tuple(2, "i", 77u));
}

TEST_F(GlintDesignTest, ComesFromItsFormAndGoesBack) {
    const std::string form =
        "BTYPE=3;TX=&Go;ENAB=0;FONT=Sans;COLTYPE=2;FOCUSR=0;BCOL=-2147483635;BCOLO=1;FCOL=2;"
        "FCOLO=3;MCOL=4;MPTR=5;MICON=i;PICN=n;PICH=h;UMCOL=0;SOFT=1;PICPOS=4;NGREY=1;FX=2;"
        "CHECK=1;VALUE=1;";
    design.readProperties(TextBag{form});
    EXPECT_EQ(taken(), "font;pointer;icon;disabled;measure;layout;access key;");
    EXPECT_EQ(written(), form);
    design.readProperties(TextBag{});
    EXPECT_EQ(written(),
              "BTYPE=2;TX=;ENAB=1;FONT=Ambient;COLTYPE=1;FOCUSR=1;BCOL=12632256;BCOLO=12632256;"
              "FCOL=0;FCOLO=0;MCOL=12632256;MPTR=0;MICON=;PICN=;PICH=;UMCOL=1;SOFT=0;PICPOS=0;"
              "NGREY=0;FX=0;CHECK=0;VALUE=0;");
    design.readProperties(TextBag{"BCOL=7;FCOL=8;"});  // hovering colours follow
    EXPECT_EQ(std::pair(button.BackOver, button.ForeOver), std::pair(7u, 8u));
}

TEST_F(GlintDesignTest, TakesHoverColoursAlongOnlyAtDesignTime) {
    const auto over = [this] { return std::vector{button.BackOver, button.ForeOver}; };
    const auto drawn = [&colours = button.palette] {
        return std::vector{colours.FaceColour.bgr(), colours.TextColour.bgr(),
                           colours.FaceOverColour.bgr(), colours.TextOverColour.bgr(),
                           colours.MaskRGB.bgr()};
    };
    button.ColorScheme = 2;
    design.setBackColor(0x111111);
    design.setForeColor(0x222222);
    EXPECT_EQ(over(), (std::vector{0u, 0u}));
    userMode = false;
    EXPECT_EQ(drawn(), (std::vector{0x111111u, 0x222222u, 0u, 0u, 0u}));
    design.setBackColor(0x333333);
    design.setForeColor(0x444444);
    EXPECT_EQ(over(), (std::vector{0x333333u, 0x444444u}));
    // The palette learns of these only when it is made anew.
    design.setBackOver(0x555555);
    design.setForeOver(0x777777);
    design.setMaskColor(0x666666);
    EXPECT_EQ(drawn(), (std::vector{0x333333u, 0x444444u, 0x333333u, 0x444444u, 0u}));
    interaction.ambientChanged();
    EXPECT_EQ(drawn(), (std::vector{0x333333u, 0x444444u, 0x555555u, 0x777777u, 0x666666u}));
}

TEST_F(GlintDesignTest, PlacesANewButtonBlackOnBlack) {
    design.initialiseProperties();
    EXPECT_EQ(taken(), "font;palette;layout;");
    EXPECT_EQ(written(),
              "BTYPE=14;TX=cmdNew;ENAB=1;FONT=Ambient;COLTYPE=2;FOCUSR=1;BCOL=0;BCOLO=0;FCOL=0;"
              "FCOLO=0;MCOL=12632256;MPTR=0;MICON=;PICN=;PICH=;UMCOL=1;SOFT=0;PICPOS=0;NGREY=0;"
              "FX=0;CHECK=0;VALUE=0;");
    EXPECT_EQ(button.palette.MaskRGB, kBlack);
}

TEST(GlintLayout, PlacesCaptionAndPicture) {
    const std::tuple<int, GlintRect, GlintRect, GlintRect> rows[] = {
        {0, {24, 4, 92, 33}, {46, 16, 77, 29}, {22, 17, 42, 27}},
        {1, {4, 4, 72, 33}, {24, 16, 55, 29}, {59, 17, 79, 27}},
        {2, {4, 14, 92, 33}, {36, 21, 67, 34}, {41, 7, 61, 17}},
        {3, {4, 4, 92, 23}, {36, 9, 67, 22}, {41, 26, 61, 36}},
        {4, {4, 1, 92, 37}, {36, 14, 67, 27}, {41, 15, 61, 25}},
        {9, {0, 0, 0, 0}, {0, 0, 31, 13}, {5, 1, 25, 11}}};
    const GlintSize size{100, 41}, picture{20, 10};  // and a caption measured as 31 x 13
    for (const auto& [position, room, text, place] : rows) {
        SCOPED_TRACE(position);
        EXPECT_EQ(captionBounds(position, size, picture), room);
        const GlintRect measured{room.left, room.top, room.left + 31, room.top + 13};
        const auto [dx, dy] = captionShift(position, size, picture, measured);
        EXPECT_EQ(measured.moved(dx, dy), text);
        EXPECT_EQ(picturePlace(position, size, picture, text, true), place);
        const GlintRect alone = picturePlace(position, size, picture, text, false);
        EXPECT_EQ(alone, (GlintRect{40, 15, 60, 25}));
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
