#include <gtest/gtest.h>

#include "battle/DragAim.h"
#include "battle/TypedNumber.h"

namespace skylob::test {

TEST(AimByHand, TypedNumbersAreSetWhenTheyAreCompleteAndInRange) {
    struct Case {
        BarRange range;
        const char *keys, *set;  // a dot is that nothing more came
    };
    const Case cases[] = {{kSpeedRange, "442", "442"},        {kSpeedRange, "4427", "442"},
                          {kSpeedRange, "442999", "442 999"}, {kSpeedRange, "042100", "100"},
                          {kSpeedRange, "44.331", "331"},     {kAngleRange, "75", "75"},
                          {kAngleRange, "9110", "10"},        {kAngleRange, "9.10", "10"},
                          {kGameSpeedRange, "7.", "7"}};
    for (const auto& [range, keys, set] : cases) {
        TypedNumber number{range};
        std::string values;
        for (const char key : std::string_view{keys}) {
            const auto value = key == '.' ? number.finish() : number.type(key - '0');
            if (!value) continue;
            if (!values.empty()) values += ' ';
            values += std::to_string(*value);
        }
        EXPECT_EQ(values, set) << keys;
    }
}

TEST(AimByHand, ADragIsTheDirectionAndTheLengthOfTheShot) {
    // 45 true degrees are 44 of the game's; the muzzle is 8 above the ground.
    struct Case {
        int side;
        FieldPoint piece, to;
        Aim aim;
    };
    const Case cases[] = {
        {1, {100, 100}, {400, 408}, {424, 46}}, {2, {900, 100}, {600, 408}, {424, 46}},
        {1, {100, 100}, {100, 508}, {400, 90}}, {1, {100, 100}, {400, 50}, {306, 10}},
        {1, {100, 100}, {50, 300}, {198, 90}},  {2, {900, 100}, {950, 300}, {198, 90}},
        {1, {20, 30}, {1000, 1000}, {999, 45}}, {2, {900, 100}, {890, 110}, {100, 13}}};
    for (const auto& [side, piece, to, aim] : cases) {
        const Aim found = aimByDragging(side, piece, to);
        EXPECT_EQ(found.speed, aim.speed) << side << ' ' << to.x << ' ' << to.y;
        EXPECT_EQ(found.angle, aim.angle) << side << ' ' << to.x << ' ' << to.y;
    }
}

}  // namespace skylob::test
