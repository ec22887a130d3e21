#include "chart/names/RecentRing.h"
#include "sensors/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

std::vector<int> range(int from, int to) {
    std::vector<int> ids;
    for (int id = from; id >= to; --id)
        ids.push_back(id);
    return ids;
}

TEST(RecentRing, sixteenthPushesOutTheOldest) {
    RecentRing ring;
    EXPECT_TRUE(ring.ids().empty());
    for (int id = 1; id <= 15; ++id)
        ring.note(id);
    EXPECT_EQ(ring.ids(), range(15, 1));
    ring.note(16);
    EXPECT_EQ(ring.ids(), range(16, 2));
}

TEST(RecentRing, aKnownOneMovesToTheFront) {
    RecentRing ring;
    for (int id = 1; id <= 20; ++id)
        ring.note(id);
    ring.note(18); // third
    EXPECT_EQ(ring.ids(), (std::vector<int>{18, 20, 19, 17, 16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6}));
    ring.note(6); // last
    EXPECT_EQ(ring.ids(), (std::vector<int>{6, 18, 20, 19, 17, 16, 15, 14, 13, 12, 11, 10, 9, 8, 7}));
    ring.note(6);
    ring.note(RecentRing::Empty);
    EXPECT_EQ(ring.ids().size(), 15u);
    EXPECT_EQ(ring.ids().front(), 6);
}

TEST(RecentRing, fileForm) {
    const TemporaryFolder folder;
    RecentRing ring;
    for (const int id : {-1, 0x01020304, 7})
        ring.note(id);
    ASSERT_TRUE(ring.save(folder.path("recent")));
    std::ifstream in(folder.path("recent"), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    ASSERT_EQ(bytes.size(), 60u);
    const std::string empty("\x81\x69\x67\xff", 4); // -9999999
    EXPECT_EQ(bytes.substr(0, 16), std::string("\7\0\0\0\4\3\2\1\xff\xff\xff\xff", 12) + empty);
    EXPECT_EQ(bytes.substr(56), empty);

    RecentRing loaded;
    EXPECT_TRUE(loaded.load(folder.path("recent")));
    EXPECT_EQ(loaded.ids(), ring.ids());

    folder.write("recent", bytes.substr(0, 59));
    EXPECT_FALSE(loaded.load(folder.path("recent")));
    EXPECT_TRUE(loaded.ids().empty());
    EXPECT_FALSE(loaded.load(folder.path("missing")));
    EXPECT_FALSE(loaded.save(folder.path("missing/recent")));
}

} // namespace

} // namespace skyvane
