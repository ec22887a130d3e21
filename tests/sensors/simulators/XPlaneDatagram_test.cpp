#include "sensors/simulators/XPlaneDatagram.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

/// "DATA" and its sign, group 17: pitch 2.5, roll -1, heading 90, five zeros.
const unsigned char golden[] = {'D', 'A', 'T',  'A',  '*',                                  //
                                17,  0,   0,    0,                                          //
                                0,   0,   0x20, 0x40, 0,   0, 0x80, 0xbf, 0, 0, 0xb4, 0x42, //
                                0,   0,   0,    0,    0,   0, 0,    0,    0, 0, 0,    0,    0, 0, 0, 0, 0, 0, 0, 0};

TEST(XPlaneDatagram, readsTheGoldenBytes) {
    static_assert(sizeof(golden) == 41, "a header and one group");
    XPlaneDatagram datagram(golden, sizeof(golden));
    ASSERT_TRUE(datagram.isTaken());
    XPlaneDatagram::Group group;
    ASSERT_TRUE(datagram.next(group));
    EXPECT_EQ(group.index, 17);
    EXPECT_EQ(group.values, (std::array<float, 8>{2.5f, -1.0f, 90.0f, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(datagram.next(group));
}

TEST(XPlaneDatagram, takesWholeGroupsOnly) {
    const std::string bytes(600, '\0');
    for (size_t length = 0; length <= bytes.size(); ++length) {
        XPlaneDatagram datagram(bytes.data(), length);
        const bool whole = length == 41 || length == 77 || (length > 77 && (length - 41) % 36 == 0);
        EXPECT_EQ(datagram.isTaken(), whole) << length;
        size_t groups = 0;
        for (XPlaneDatagram::Group group; datagram.next(group);)
            ++groups;
        EXPECT_EQ(groups, whole ? (length - 5) / 36 : 0) << length;
    }
}

} // namespace
} // namespace skyvane
