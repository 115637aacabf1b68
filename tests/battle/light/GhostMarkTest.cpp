#include <gtest/gtest.h>

#include "battle/light/FieldLayer.h"
#include "tests/support/SkyRig.h"

namespace skylob::test {

TEST(GhostMark, StandsWhereTheSideThatAimsHasShotLast) {
    SkyRig rig;
    FieldLayer layer{rig.picture(), rig.battle.scene(), rig.state()};
    // The upper end of a mark, 19 above the landing; a pixel is a unit.
    const auto light = [&](FieldPoint landing) {
        layer.update(rig.picture().takeDirty());
        return layer.whole()[(1000 - landing.y - 19) * 1000 + landing.x - 1];
    };
    constexpr FieldPoint kAnns{230, 105}, kBobs{796, 28};
    constexpr std::uint32_t kCoral = 0xFFFF917C, kOrchid = 0xFFE39BFF;
    constexpr Aim kShort{100, 75};
    for (int shot = 1; shot <= 2; ++shot) rig.shoot(kShort);
    EXPECT_EQ(light(kAnns), kCoral);
    EXPECT_NE(light(kBobs), kOrchid);
    rig.view.onShowField = [&] { EXPECT_NE(light(kAnns), kCoral); };
    rig.shoot(kShort);
    rig.view.onShowField = {};
    EXPECT_EQ(light(kBobs), kOrchid);
    EXPECT_NE(light(kAnns), kCoral);
    layer.setOn(false);
    EXPECT_NE(light(kBobs), kOrchid);
    layer.setOn(true);
    rig.shoot({999, 75});  // out of bounds leaves no mark
    rig.shoot(kShort);
    EXPECT_NE(light(kBobs), kOrchid);
}

}  // namespace skylob::test
