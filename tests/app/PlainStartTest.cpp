#include "app/PlainStart.h"

#include <gtest/gtest.h>

#include "base/NullPorts.h"

namespace skylob::test {

TEST(PlainStart, PutsOutTheLightUntilThePlayerWantsItOtherwise) {
    MemoryWindows store;
    store.keep(kEffectsKey, "1");
    store.keep("Place", "5,5");
    EXPECT_EQ((PlainStart{store, {}}.recall(kEffectsKey, "0")), "1");
    CommandLine asked;
    asked.plain = true;
    PlainStart plain{store, asked};
    EXPECT_EQ(plain.recall("Place", ""), "5,5");
    plain.keep("Place", "6,6");
    EXPECT_EQ(plain.recall(kEffectsKey, "1"), "0");
    EXPECT_EQ(store.recall(kEffectsKey, "0"), "1");
    plain.keep(kEffectsKey, "1");
    EXPECT_EQ(plain.recall(kEffectsKey, "0"), "1");
}

}  // namespace skylob::test
