#include "displays/layout/RenderTargetSharing.h"

#include <gtest/gtest.h>

using namespace skyvane;

namespace {

int first, second, mapA, mapB, mapC;

TEST(RenderTargetSharing, sharesBetweenOwnersWithDifferentSlots) {
    RenderTargetSharing sharing;
    EXPECT_EQ(sharing.share(&mapA, 0, 512), nullptr);
    sharing.add(&first, &mapA, 0, 512);
    EXPECT_EQ(sharing.share(&mapA, 1, 512), nullptr) << "the same owner";
    EXPECT_EQ(sharing.share(&mapB, 0, 512), nullptr) << "the same slot";
    EXPECT_EQ(sharing.share(&mapB, 1, 1024), nullptr) << "another size";
    EXPECT_EQ(sharing.share(&mapB, 1, 512), &first);
    EXPECT_EQ(sharing.share(&mapC, 1, 512), nullptr) << "the slot of the second user";
    sharing.add(&second, &mapC, 1, 512);
    EXPECT_EQ(sharing.count(), 2u);
}

TEST(RenderTargetSharing, aTargetGoesWithItsLastUser) {
    RenderTargetSharing sharing;
    sharing.add(&first, &mapA, 0, 512);
    sharing.share(&mapB, 1, 512);
    EXPECT_FALSE(sharing.release(&first, &mapB, 0)) << "no such user";
    EXPECT_FALSE(sharing.release(&second, &mapA, 0)) << "no such target";
    EXPECT_FALSE(sharing.release(&first, &mapA, 0));
    EXPECT_TRUE(sharing.release(&first, &mapB, 1));
    EXPECT_FALSE(sharing.release(&first, &mapB, 1));
    EXPECT_EQ(sharing.count(), 0u);
}

} // namespace
