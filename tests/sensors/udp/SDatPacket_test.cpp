#include "sensors/udp/SDatPacket.h"

#include "sensors/FormText.h"
#include "sensors/records/Heading_Data.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

const Bytes golden = fromHex("53446174 02000000 0C000000 A6 01 2A 0000000000805640 E8030000");

TEST(SDatPacket, goldenBytesBothWays) {
    Heading_Data heading(90.0, 1000);
    const Bytes form = formOf(heading);
    SDatPacket packet;
    packet.type = ISensorData::Heading;
    packet.level = ISensor::MAYBE_WRONG;
    packet.sequenceNumber = 42;
    packet.form = form.data();
    packet.length = form.size();
    Bytes written(packet.bytes());
    packet.write(written.data());
    EXPECT_EQ(written, golden);

    SDatPacket read;
    ASSERT_TRUE(read.read(golden.data(), golden.size()));
    EXPECT_TRUE(read.isIntact);
    EXPECT_EQ(read.type, 2);
    EXPECT_EQ(read.level, ISensor::MAYBE_WRONG);
    EXPECT_EQ(read.sequenceNumber, 42);
    EXPECT_EQ(Bytes(read.form, read.form + read.length), form);
}

TEST(SDatPacket, anyFlippedByteIsFoundAndAnyCutPacketIsNone) {
    for (size_t i = 0; i < golden.size(); ++i) {
        Bytes flipped = golden;
        flipped[i] ^= 0x11;
        SDatPacket packet;
        EXPECT_FALSE(packet.read(flipped.data(), flipped.size()) && packet.isIntact) << i;
        const Bytes cut(golden.begin(), golden.begin() + static_cast<long>(i));
        EXPECT_FALSE(packet.read(cut.data(), cut.size())) << i;
    }
    Bytes level = golden;
    level[13] = 0xff;
    SDatPacket packet;
    ASSERT_TRUE(packet.read(level.data(), level.size()));
    EXPECT_EQ(packet.level, ISensor::WRONG) << "a level that is none";
}

TEST(SequenceCheck, ordersByTheCircleWithinLimits) {
    const auto follows = [](int last, int next) {
        SequenceCheck check;
        EXPECT_TRUE(check.isInOrder(static_cast<uint8_t>(last)));
        return check.isInOrder(static_cast<uint8_t>(next));
    };
    EXPECT_TRUE(follows(255, 0)) << "the wrap";
    EXPECT_TRUE(follows(250, 4)) << "10 further";
    EXPECT_FALSE(follows(250, 5)) << "11 further";
    EXPECT_TRUE(follows(7, 7));
    EXPECT_TRUE(follows(7, 200));
    EXPECT_TRUE(follows(100, 90)) << "a late one is taken";
    EXPECT_FALSE(follows(200, 2)) << "58 further";
    EXPECT_EQ(SeqNrDiff(0, static_cast<char>(255)), 1);
}

TEST(SequenceCheck, aSenderThatBeganAnewGetsThrough) {
    SequenceCheck check;
    check.isInOrder(200);
    for (int i = 0; i < 27; ++i)
        EXPECT_FALSE(check.isInOrder(0)) << i;
    EXPECT_TRUE(check.isInOrder(0));
    EXPECT_TRUE(check.isInOrder(1));
}

} // namespace
} // namespace skyvane
