#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Bytes, haveTheStatedOrder) {
    uint8_t buffer[14];
    ByteWriter out(buffer, sizeof buffer);
    out.little<uint16_t>(0x1234);
    out.big<uint32_t>(0x01020304u);
    out.little(1.0);
    const uint8_t golden[] = {0x34, 0x12, 1, 2, 3, 4, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F};
    EXPECT_EQ(0, std::memcmp(buffer, golden, sizeof golden));
    EXPECT_FALSE(out.fail());

    ByteReader in(buffer, sizeof buffer);
    EXPECT_EQ(in.little<uint16_t>(), 0x1234);
    EXPECT_EQ(in.big<int32_t>(), 0x01020304);
    EXPECT_EQ(in.little<double>(), 1.0);
    EXPECT_EQ(in.remaining(), 0u);
    EXPECT_FALSE(in.fail());
}

TEST(Bytes, neverLeaveTheirRange) {
    const uint8_t three[] = {1, 2, 3};
    ByteReader in(three, sizeof three);
    EXPECT_EQ(in.little<uint32_t>(), 0u);
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(in.little<uint8_t>(), 0u) << "a failed reader has nothing left";
    ByteReader taker(three, sizeof three);
    EXPECT_EQ(taker.take(3), three);
    EXPECT_EQ(taker.take(SIZE_MAX), nullptr);

    uint8_t buffer[4] = {};
    ByteWriter out(buffer, 3);
    out.bytes(three, 2);
    out.little<uint16_t>(0xFFFF);
    EXPECT_TRUE(out.fail());
    EXPECT_EQ(out.size(), 2u);
    EXPECT_EQ(buffer[2], 0);
    EXPECT_EQ(buffer[3], 0);
}

} // namespace
} // namespace skyvane
