#include "battle/light/FieldLayer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Shown.h"
#include "tests/support/SkyRig.h"

namespace skylob::test {

constexpr std::uint32_t kBlackPixel = 0xFF000000u;

static double luminance(std::uint32_t pixel) {
    const auto linear = [pixel](int shift) {
        const double part = (pixel >> shift & 0xFF) / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

static double contrast(std::uint32_t a, std::uint32_t b) {
    const double one = luminance(a) + 0.05, other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// A battle under two layers, and the window that shows what the first one says has changed. The
/// second composes the whole picture every now and then.
struct LitBattle : SkyRig {
    explicit LitBattle(int dotScale) {
        battle.picture().resize(kEdge, kEdge, dotScale);
        const auto [width, height] = picture().pieceSize();
        // Half transparent on the left, and with holes on the right.
        const auto pixels = static_cast<std::size_t>(width * height);
        picture().setPieceImage(1, {width, height, std::vector(pixels, 0x80406080u)});
        picture().setPieceImage(2, holed(width, height));
        view.onShowField = [this] { show(); };
        battle.replotField();
    }

    static FieldPicture::PieceImage holed(int width, int height) {
        FieldPicture::PieceImage image{width, height, {}};
        for (int i = 0; i < width * height; ++i)
            image.pixels.push_back(i % 3 == 0 ? 0 : 0xFF05070Du);
        return image;
    }

    void show() {
        const PixelRect changed = picture().takeDirty();
        if (std::exchange(makings, picture().makings()) != picture().makings())
            refreshed = pixels();
        window.update(layer, changed);
        const bool looksClosely = ++shows % 61 == 1;
        whole.update(looksClosely ? PixelRect{0, 0, kEdge, kEdge} : changed);
        if (looksClosely) compare();
    }

    void compare() {
        ++comparisons;
        EXPECT_TRUE(window.pixels == shownBy(whole)) << shows;
        EXPECT_TRUE(whole.pack()) << shows;  // the last one went with the last change
        EXPECT_TRUE(window.pixels == shownBy(whole)) << shows;
        long faults = 0;
        for (int i = 0; i < kEdge * kEdge; ++i) {
            const std::uint32_t rule = picture().screenPixels()[i];
            if (rule != kBlackPixel && window.pixels[static_cast<std::size_t>(i)] != rule &&
                !isPiece(i))
                ++faults;
        }
        EXPECT_EQ(faults, 0) << shows;
    }

    /// As the last refresh made it, and not since drawn over.
    bool isPiece(int i) {
        for (const int side : kSides) {
            const PixelRect at = common(picture().pieceArea(side), {i % kEdge, i / kEdge, 1, 1});
            if (!at.isEmpty())
                return refreshed[static_cast<std::size_t>(i)] == picture().screenPixels()[i];
        }
        return false;
    }

    static constexpr int kEdge = 500;
    FieldLayer layer{battle.picture(), battle.scene(), battle.state()};
    FieldLayer whole{battle.picture(), battle.scene(), battle.state()};
    ShownPicture window;
    std::vector<std::uint32_t> refreshed;
    int makings = 0, shows = 0, comparisons = 0;
};

TEST(FieldLayer, ShowsEveryChangeAndKeepsTheColoursOfTheRules) {
    for (const int dotScale : {1, 2}) {
        LitBattle field{dotScale};
        field.options().chkTrajectory_Click(true);
        field.shoot({330, 75});  // Ann's shell leaves the picture above, or falls far off
        field.shoot({300, 72});
        field.shoot({300, 80});
        field.passTime();
        field.begin(kMeteor);
        field.passTime();
        field.begin(kStorm);
        field.compare();
        EXPECT_GT(field.comparisons, 10);
        // Nothing moves where nobody acts.
        EXPECT_TRUE(field.layer.update({}).empty());
        EXPECT_TRUE(field.layer.update({}).empty());
        field.layer.setOn(false);
        field.show();
        EXPECT_EQ(field.window.pixels, field.pixels());
        field.layer.paint({0, 0, 1, 1}, [&](const FieldLayer::Part& part) {
            EXPECT_EQ(part.pixels, field.picture().screenPixels());  // not a copy
        });
    }
}

/// A field without a battle, and the light upon it.
struct LitField : AnimatedField {
    explicit LitField(int dotScale) {
        SeededRandom random{1};
        generateBattlefield(state.field, random, 1, 5);
        picture.resize(984 * dotScale, 512 * dotScale, dotScale);
        draw();
    }
    void draw() {
        drawBattlefield(state.field, picture, 2);
        update();
    }
    void update() { window.update(layer, picture.takeDirty()); }
    std::uint32_t shown(int px, int py) const {
        return window.pixels[static_cast<std::size_t>(py * picture.width() + px)];
    }
    /// The brightest one around a point of the field.
    double brightest(FieldPoint at, int around) const {
        const PixelRect dot = picture.dotArea(at.x, at.y);
        double most = 0;
        for (int y = dot.y - around; y < dot.bottom() + around; ++y)
            for (int x = dot.x - around; x < dot.right() + around; ++x)
                if (picture.screenPixels()[y * picture.width() + x] == kBlackPixel)
                    most = std::max(most, luminance(shown(x, y)));
        return most;
    }

    BattleState state;
    FieldLayer layer{picture, animation.scene(), state};
    ShownPicture window;
};

TEST(FieldLayer, PartsEveryGroundFromTheSky) {
    for (const int dotScale : {1, 2}) {
        LitField field{dotScale};
        for (int number = 1; number <= 6; ++number) {
            field.state.field.groundColour = TerrainColours(number);
            field.state.field.moonY = 500;  // behind the ridge as well
            field.draw();
            const std::uint32_t ground = TerrainColours(number).pixel();
            int looked = 0;
            for (int px = 0; px < field.picture.width(); ++px) {
                int py = field.picture.height() - 1;
                const auto rule = [&] {
                    return field.picture.screenPixels()[py * field.picture.width() + px];
                };
                while (rule() == ground) --py;
                if (rule() != kBlackPixel) continue;
                ++looked;
                EXPECT_GE(contrast(field.shown(px, py), ground), 3) << number << " at " << px;
            }
            EXPECT_GT(looked, 900 * dotScale);
        }
    }
}

TEST(FieldLayer, PaintsEachPartAsTheWholeAndNoOldSize) {
    LitField field{1};
    field.animation.scene().bolts = {{{300, 900}, {310, 700}}};
    field.update();
    for (const bool packed : {false, true}) {
        EXPECT_EQ(packed, packed && field.layer.pack());
        for (const PixelRect& area :
             {PixelRect{700, -5, 300, 45}, {13, 300, 1, 200}, {31, 511, 34, 9}}) {
            std::size_t at = 0;
            const auto part = shownBy(field.layer, area);
            const PixelRect seen = common(area, {0, 0, 984, 512});
            ASSERT_EQ(part.size(), static_cast<std::size_t>(seen.width * seen.height));
            for (const std::uint32_t pixel : part) {
                const auto [row, column] = std::div(static_cast<int>(at++), seen.width);
                ASSERT_EQ(pixel, field.shown(seen.x + column, seen.y + row)) << packed;
            }
        }
    }
    EXPECT_FALSE(field.layer.pack());
    field.picture.resize(700, 600, 1);
    field.picture.setPoint(990, 10, kRed);
    EXPECT_TRUE(shownBy(field.layer) == pixelsOf(field.picture));
    field.update();
    EXPECT_FALSE(field.window.pixels == pixelsOf(field.picture));
}

TEST(FieldLayer, LightsAShellItsTrailAndItsPlaceAboveThePicture) {
    for (const int scale : {1, 2}) {
        LitField field{scale};
        field.state.field.stars.clear();
        field.draw();
        FieldScene::Flight& flight = field.animation.scene().flight;
        const FieldPoint old{300, 940}, shell{700, 960}, above{500, 1200};
        const auto goTo = [&](FieldPoint at) {
            flight.path.push_back(at);
            field.picture.setPassingPoint(at.x, at.y, kRed);
            field.update();
        };
        const double dark = field.brightest(old, 3);
        flight = {1, true, true, {}};
        goTo(old);
        const PixelRect dot = field.picture.dotArea(old.x, old.y);
        for (int away = 1; away <= 3 * scale; ++away)
            for (const int px : {dot.x - away, dot.right() - 1 + away})
                EXPECT_GE(contrast(field.shown(px, dot.y), kBlackPixel), 3) << away;
        for (int x = 301; x < 700; x += 7) goTo({x, 940});
        goTo(shell);
        const double trail = field.brightest(old, 1);
        EXPECT_GT(trail, dark + 0.02);
        EXPECT_GT(field.brightest({686, 940}, 1), trail);  // nearly the newest

        const auto top = [&](int x) { return field.shown(field.picture.column(x), 8 * scale); };
        const std::uint32_t sky = top(above.x);
        goTo(above);
        EXPECT_GE(contrast(top(above.x), kBlackPixel), 10);
        goTo({540, 1100});
        EXPECT_EQ(top(above.x), sky);
        flight.inTheAir = false;
        field.update();
        EXPECT_EQ(top(540), sky);
        EXPECT_DOUBLE_EQ(field.brightest(old, 1), trail);
        // Gone with the picture, and with the next shot.
        for (const bool swept : {true, false}) {
            if (swept) field.picture.refresh();
            if (!swept) flight = {2, true, true, {}};
            goTo({900, 900});
            EXPECT_DOUBLE_EQ(field.brightest(old, 3), dark) << swept;
        }
    }
}

}  // namespace skylob::test
