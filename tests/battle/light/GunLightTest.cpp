#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>

#include "battle/ShellFlight.h"
#include "battle/light/GunDrawings.h"
#include "tests/support/Shown.h"
#include "tests/support/SkyRig.h"

namespace skylob::test {

constexpr std::uint32_t kWhole = 0xFF808080u, kWreck = 0xFF404040u, kRulesPiece = 0xFF305070u;
constexpr Aim kHit{381, 80}, kNear{379, 80}, kFarOff{100, 75}, kOnOneself{100, 90};

/// A gun that fills the piece's area.
struct PlainGuns : GunDrawings {
    std::shared_ptr<const GunDrawing> draw(const GunPose& pose,
                                           FieldPicture::PixelSize size) override {
        const auto pixels = static_cast<std::size_t>(size.width * size.height);
        const std::vector<std::uint32_t> image(pixels, pose.wrecked ? kWreck : kWhole);
        return std::make_shared<const GunDrawing>(GunDrawing{{size.width, size.height, image}});
    }
};

/// A battle without trails and stars that twinkle, seen through the layer whenever it is shown.
struct LitRig : SkyRig {
    LitRig() {
        picture().resize(500, 500, 1);
        const std::vector<std::uint32_t> image(12 * 23, kRulesPiece);
        for (const int side : kSides) picture().setPieceImage(side, {12, 23, image});
        options().chkTrajectory_Click(false);
        battle.replotField();
        look();
        view.onShowField = [this] { look(); };
    }

    void look() {
        window.update(layer, picture().takeDirty());
        if (onLook) onLook();
    }
    std::uint32_t inTheMiddleOf(int side) {
        const PixelRect area = picture().pieceArea(side);
        return window.at(area.x + area.width / 2, area.y + area.height / 2);
    }

    PlainGuns guns;
    FieldLayer layer{battle.picture(), battle.scene(), battle.state(), &guns};
    ShownPicture window;
    std::function<void()> onLook;
};

TEST(GunLight, PointsTheBarrelAsTheShellLeaves) {
    for (const auto& [width, height] : {std::pair{1000, 1000}, {984, 512}}) {
        FieldPicture picture;
        picture.resize(width, height, 1);
        for (const int side : kSides) {
            picture.placePiece(side, 500, 300);
            for (const int angle : {10, 45, 75, 90}) {
                SCOPED_TRACE(testing::Message() << width << " side " << side << ", " << angle);
                BattleState state;
                state.aim[side].angle = angle;
                const FieldScene scene;
                const Skyline skyline;
                const GunPose pose = gunPose(side, {picture, scene, state, skyline});
                const LightPoint muzzle = muzzleOf(pose, picture.pieceArea(side));
                // A shell without wind, half a unit of time later; its fall is still a trifle.
                ShellFlight flight{{side, 999, angle, 500, 300, 0}};
                const FieldPoint from = flight.position();
                flight.advance();
                const FieldPoint to = flight.position();
                const double right = muzzle.x - picture.column(from.x);
                const double up = picture.row(from.y) - muzzle.y;
                const double off = std::atan2(right, up) -
                                   std::atan2(picture.column(to.x) - picture.column(from.x),
                                              picture.row(from.y) - picture.row(to.y));
                EXPECT_LT(std::abs(off), 6 * std::numbers::pi / 180);
                EXPECT_NEAR(std::hypot(right, up), width < 1000 ? 12.4 : 12.6, 1.2);
            }
        }
    }
}

TEST(GunLight, ChangesWithTheAimAndNowhereElse) {
    LitRig rig;
    const PixelRect piece = rig.picture().pieceArea(1);
    EXPECT_TRUE(rig.layer.update({}).empty());
    rig.aim(1, {300, 40});
    const std::vector<PixelRect> areas = rig.layer.update({});
    ASSERT_EQ(areas.size(), 1u);
    const PixelRect changed = areas[0];
    EXPECT_EQ(common(changed, piece), piece);
    EXPECT_LT(changed.width * changed.height, 6 * piece.width * piece.height);
}

TEST(BlastLight, FallsOnBlackAndPiecesAloneAndIsGoneWithTheBlast) {
    std::vector<std::ptrdiff_t> brightest;
    for (const Aim& aim : {kHit, kOnOneself, kNear, kFarOff}) {
        SCOPED_TRACE(testing::Message() << aim.speed << ", " << aim.angle);
        LitRig rig;
        const auto before = rig.window.pixels;
        bool over = false;
        std::ptrdiff_t lit = 0;
        rig.onLook = [&] {
            const bool burns = rig.battle.scene().blast.has_value();
            if (over || (!burns && lit == 0)) return;  // not yet, or no more
            over = !burns;
            std::ptrdiff_t changed = 0, wrong = 0, left = 0;
            const std::uint32_t *lights = rig.window.pixels.data(),
                                *ruled = rig.picture().screenPixels();
            for (const std::uint32_t was : before) {
                const std::uint32_t shown = *lights++, rules = *ruled++;
                if (shown == was && shown == rules) continue;
                changed += shown != was;
                wrong += shown != rules && rules != 0xFF000000u && rules != kRulesPiece;
                left += (shown >> 16 & 0xFF) > (was >> 16 & 0xFF);
            }
            EXPECT_EQ(wrong, 0);
            EXPECT_EQ(over ? left : 0, 0);  // nothing is redder than before the shot
            lit = std::max(lit, changed);
        };
        rig.fire(aim);
        EXPECT_TRUE(over);
        brightest.push_back(lit);
    }
    EXPECT_GT(brightest[0], 5 * brightest[2]);  // a hit, a near miss
    EXPECT_GT(brightest[1], 5 * brightest[2]);  // one on oneself
    EXPECT_GT(brightest[2], 2 * brightest[3]);  // a miss
    EXPECT_GT(brightest[3], 50);
}

/// The most of the black sky that becomes clearly brighter or darker from one look to the next, in
/// pixels: by a shell's flight, by its hit and by a storm.
static std::array<int, 3> flashes(Motion motion) {
    constexpr int kEvery = 7, kLooked = 500 * 500 / kEvery;
    LitRig rig;
    rig.layer.setMotion(motion);
    std::array<int, kLooked> last{};
    std::array<int, 3> most{};
    rig.onLook = [&] {
        const std::uint32_t *shown = rig.window.pixels.data(),
                            *rules = rig.picture().screenPixels();
        int changed = 0;
        for (int& before : last) {
            const int green = *shown >> 8 & 0xFF;
            if (*rules == 0xFF000000u) {
                changed += std::abs(green - before) > 10;
                before = green;
            }
            shown += kEvery;
            rules += kEvery;
        }
        const auto& scene = rig.battle.scene();
        int& peak = most[scene.blast ? 1 : scene.flight.inTheAir ? 0 : 2];
        peak = std::max(peak, changed);
    };
    rig.look();
    most = {};
    rig.fire(kHit);
    most[2] = 0;  // a new round has begun
    rig.passTime();
    rig.begin(kStorm);
    return most;
}

TEST(FieldLayer, DoesNotFlashWhereMotionIsToBeReduced) {
    const auto full = flashes(Motion::Full), calm = flashes(Motion::Reduced);
    for (std::size_t i = 0; i < full.size(); ++i) EXPECT_GT(full[i], 2 * calm[i]) << i;
}

TEST(GunLight, LeavesAWreckUntilTheRoundIsOver) {
    for (const auto& [aim, victim] : {std::pair{kHit, 2}, {kOnOneself, 1}}) {
        LitRig rig;
        std::uint32_t atTheEnd = 0;
        rig.onLook = [&, side = victim] {
            if (rig.state().RoundNumber == 1) atTheEnd = rig.inTheMiddleOf(side);
        };
        EXPECT_EQ(rig.inTheMiddleOf(victim), kWhole);
        rig.fire(aim);
        EXPECT_EQ(atTheEnd, kWreck);
        EXPECT_EQ(rig.state().RoundNumber, 2);
        for (const int side : kSides) EXPECT_EQ(rig.inTheMiddleOf(side), kWhole);
    }
}

}  // namespace skylob::test
