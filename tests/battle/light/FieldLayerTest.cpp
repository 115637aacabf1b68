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
        EXPECT_TRUE(std::equal(window.pixels.begin(), window.pixels.end(), whole.whole())) << shows;
        long faults = 0;
        for (int i = 0; i < kEdge * kEdge; ++i) {
            const std::uint32_t rule = picture().screenPixels()[i];
            if (rule != kBlackPixel && window.at(i % kEdge, i / kEdge) != rule && !isPiece(i))
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
        EXPECT_EQ(field.layer.whole(), field.picture().screenPixels());
        EXPECT_EQ(field.window.pixels, field.pixels());
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
    void update() { layer.update(picture.takeDirty()); }
    std::uint32_t shown(int px, int py) { return layer.whole()[py * picture.width() + px]; }
    /// The brightest one around a point of the field.
    double brightest(FieldPoint at, int around) {
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
    for (const bool isStored : {false, true}) {
        for (const PixelRect& area :
             {PixelRect{700, -5, 300, 45}, {13, 300, 1, 200}, {31, 511, 34, 9}, {0, 0, 984, 512}}) {
            if (!isStored) {
                field.picture.setPassingPoint(500, 20 + area.x, kRed);
                field.update();
            }
            std::vector<std::pair<PixelRect, std::vector<std::uint32_t>>> rows;
            field.layer.paint(area, [&](const FieldLayer::Part& part) {
                for (int y = part.area.y; y < part.area.bottom(); ++y)
                    rows.push_back({{part.area.x, y, part.area.width, 1},
                                    {part.row(y), part.row(y) + part.area.width}});
            });
            const PixelRect seen = common(area, {0, 0, 984, 512});
            ASSERT_EQ(rows.size(), static_cast<std::size_t>(seen.height));
            for (int y = seen.y; const auto& [row, pixels] : rows) {
                EXPECT_EQ(row, (PixelRect{seen.x, y++, seen.width, 1}));
                EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(),
                                       field.layer.whole() + row.y * 984 + row.x));
            }
        }
    }
    field.picture.resize(700, 600, 1);
    field.picture.setPoint(990, 10, kRed);
    EXPECT_EQ(field.layer.whole(), field.picture.screenPixels());  // before the light has seen it
    field.update();
    EXPECT_NE(field.layer.whole(), field.picture.screenPixels());
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
