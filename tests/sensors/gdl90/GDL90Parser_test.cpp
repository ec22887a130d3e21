#include "sensors/gdl90/GDL90Bytes.h"
#include "sensors/gdl90/GDL90Crc.h"
#include "sensors/gdl90/messages/FFAHRSMessage.h"
#include "sensors/gdl90/messages/FFIdMessage.h"
#include "sensors/gdl90/messages/HeartbeatGDL90Message.h"
#include "sensors/gdl90/messages/LevilAoAMessage.h"
#include "sensors/gdl90/messages/LevilGPSStatus.h"
#include "sensors/gdl90/messages/OwnShipGDL90Message.h"
#include "sensors/gdl90/messages/OwnShipGeoAltGDL90Message.h"
#include "sensors/gdl90/messages/StratuxAHRSMessage.h"
#include "sensors/gdl90/messages/StratuxHeartbeatMessage.h"
#include "sensors/gdl90/messages/TalosGPSMessage.h"
#include "sensors/gdl90/messages/TalosTemperatureMessage.h"
#include "sensors/gdl90/messages/UATUplinkGDL90Message.h"
#include "sensors/gdl90/messages/UnknownGDL90Message.h"

#include <gtest/gtest.h>

#include <random>

namespace skyvane {
namespace {

/// The obvious twin: one bit after the other.
uint16_t slowCrc(const Bytes& bytes) {
    unsigned crc = 0;
    for (const uint8_t byte : bytes) {
        unsigned high = crc & 0xFF00u;
        for (int bit = 0; bit < 8; ++bit)
            high = (high << 1 ^ ((high & 0x8000u) != 0 ? 0x1021u : 0u)) & 0xFFFFu;
        crc = (high ^ (crc << 8) ^ byte) & 0xFFFFu;
    }
    return static_cast<uint16_t>(crc);
}

struct GDL90ParserTest : testing::Test {
    GDL90Parser parser;
    size_t count(const Bytes& stream) { return parseAll(parser, stream).size(); }
};

TEST_F(GDL90ParserTest, theCheckSequenceIsThatOfThePlainDefinition) {
    std::mt19937 random(7);
    for (int length = 0; length < 200; ++length) {
        Bytes bytes(static_cast<size_t>(length));
        for (uint8_t& byte : bytes)
            byte = static_cast<uint8_t>(random());
        ASSERT_EQ(calcGDL90Crc(bytes.data(), bytes.size()), slowCrc(bytes)) << length;
    }
}

// The heartbeat that the interface's own description prints as its example.
TEST_F(GDL90ParserTest, aPublishedFrameIsRead) {
    const Bytes golden{0x7E, 0x00, 0x81, 0x41, 0xDB, 0xD0, 0x08, 0x02, 0xB3, 0x8B, 0x7E};
    const auto messages = parseAll(parser, golden);
    ASSERT_EQ(messages.size(), 1u);
    const auto* heartbeat = dynamic_cast<HeartbeatGDL90Message*>(messages.front().get());
    ASSERT_TRUE(heartbeat);
    EXPECT_EQ(heartbeat->status1, 0x81);
    EXPECT_EQ(heartbeat->secondsSinceMidnight, 0xD0DB);
    EXPECT_EQ(heartbeat->messageCount, 0x0208);
    EXPECT_EQ(Bytes(parser.getRawData(), parser.getRawData() + parser.getRawDataSize()), golden);
    EXPECT_EQ(frameOf({0x00, 0x81, 0x41, 0xDB, 0xD0, 0x08, 0x02}), golden);
}

TEST_F(GDL90ParserTest, everyFrameThatIsFlippedCutOrDoubled) {
    const Bytes good = frameOf(ReportFields().bytes());
    for (size_t bit = 8; bit < 8 * (good.size() - 1); ++bit) {
        Bytes flipped = good;
        flipped[bit / 8] ^= static_cast<uint8_t>(1u << bit % 8);
        EXPECT_EQ(count(flipped), 0u) << "bit " << bit;
        // Wherever it left the parser, the second good frame from here is read.
        EXPECT_GE(count(good + good), 1u) << "bit " << bit;
    }
    for (size_t length = 0; length < good.size(); ++length) {
        EXPECT_EQ(count(Bytes(good.begin(), good.begin() + static_cast<long>(length))), 0u);
        EXPECT_GE(count(good + good), 1u) << "cut at " << length;
    }
    EXPECT_EQ(count(good + good), 2u);
    EXPECT_EQ(count(Bytes(good.begin(), good.end() - 1) + good), 1u) << "one flag between two frames ends the first";
}

TEST_F(GDL90ParserTest, escapes) {
    const Bytes special{0x02, 0x7D, 0x7E, 0x5D, 0x5E, 0x7D, 0x7D};
    const Bytes frame = frameOf(special);
    EXPECT_EQ(std::count(frame.begin(), frame.end(), GDL90Parser::Flag), 2);
    ASSERT_EQ(count(frame), 1u);
    EXPECT_EQ(Bytes(parser.getRawData() + 1, parser.getRawData() + 1 + special.size()), special);
    // An escaped flag doesn't end the frame, and a second escape is itself escaped. A check of 0 isn't checked.
    ASSERT_EQ(count({0x7E, 0x02, 0x7D, 0x7E, 0x7D, 0x7D, 0x00, 0x00, 0x7E}), 1u);
    EXPECT_EQ(Bytes(parser.getRawData(), parser.getRawData() + parser.getRawDataSize()),
              (Bytes{0x7E, 0x02, 0x5E, 0x5D, 0x00, 0x00, 0x7E}));
    EXPECT_EQ(count(Bytes{0x7E, 0x7E, 0x7E, 0x01, 0x7E, 0x01, 0x02, 0x7E} + Bytes(frame.begin() + 1, frame.end())), 1u)
        << "short ones start again at each flag";
    EXPECT_EQ(count(Bytes{0x7D} + frame), 1u) << "outside of a frame there is nothing to escape";
}

TEST_F(GDL90ParserTest, anOversizeFrameIsDroppedAndTheNextOneRead) {
    EXPECT_EQ(count(Bytes{0x7E} + Bytes(200000, 0x55) + frameOf({0, 0, 0, 0, 0, 0, 0})), 1u);
    EXPECT_EQ(count(Bytes{0x7E} + Bytes(GDL90Parser::BufferBytes - 2, 0) + Bytes{0x7E}), 1u) << "the largest frame";
}

TEST_F(GDL90ParserTest, idsAndLeastSizes) {
    const struct {
        Bytes id;
        size_t smallestFrame;
        IGDL90Message::Type type;
    } kinds[] = {{{0}, 9, IGDL90Message::HEARTBEAT},
                 {{10}, 30, IGDL90Message::OWNSHIP},
                 {{11}, 7, IGDL90Message::OWNSHIP_GEO_ALT},
                 {{20}, 30, IGDL90Message::TRAFFIC},
                 {{0x65, 1}, 6, IGDL90Message::FFAHRS},
                 {{0x65, 0}, 6, IGDL90Message::FFID},
                 {{204}, 5, IGDL90Message::STRATUX_HEARBEAT},
                 {{0x4C, 0x45, 1, 1}, 26, IGDL90Message::STRATUX_AHRS},
                 {{7}, 436, IGDL90Message::UAT_UPLINK},
                 {{0x3D}, 39, IGDL90Message::TALOS_PRESSURE},
                 {{0x41}, 23, IGDL90Message::TALOS_TEMPERATURE},
                 {{0x42}, 38, IGDL90Message::TALOS_GPS},
                 {{0x3E}, 30, IGDL90Message::TALOS_GYRO},
                 {{0x3F}, 30, IGDL90Message::TALOS_ACC},
                 {{0x53}, 50, IGDL90Message::TALOS_AOA},
                 {{0x4C, 0x45, 2, 0}, 12, IGDL90Message::LEVIL_AOA},
                 {{0x4C, 0x45, 7}, 14, IGDL90Message::LEVIL_GPS_STATUS}};
    for (const auto& kind : kinds) {
        Bytes message = kind.id;
        message.resize(kind.smallestFrame - 4);
        auto whole = parseAll(parser, frameOf(message));
        ASSERT_EQ(whole.size(), 1u);
        EXPECT_EQ(whole.front()->getType(), kind.type);
        EXPECT_EQ(whole.front()->print().find(IGDL90Message::type2Name(kind.type)), 0u);
        if (message.size() == kind.id.size())
            continue;
        message.pop_back();
        auto cut = parseAll(parser, frameOf(message));
        ASSERT_EQ(cut.size(), 1u);
        EXPECT_EQ(cut.front()->getType(), IGDL90Message::UNKNOWN) << IGDL90Message::type2Name(kind.type);
        EXPECT_EQ(static_cast<UnknownGDL90Message&>(*cut.front()).id, kind.id.front());
    }
    for (const Bytes& stranger : {Bytes{0x65, 2}, Bytes{0x4C, 0x45, 1, 2}, Bytes{0x4C, 0x44, 7}, Bytes{99}})
        EXPECT_TRUE(parseAs<UnknownGDL90Message>(stranger + Bytes(60)));
}

TEST_F(GDL90ParserTest, aReportsFields) {
    ReportFields fields;
    fields.addressType = 0x19;
    fields.climb = 0x801;
    auto report = parseAs<TrafficGDL90Message>(fields.bytes());
    ASSERT_TRUE(report);
    EXPECT_TRUE(report->trafficAlertStatus);
    EXPECT_EQ(report->addressType, 6);
    EXPECT_EQ(report->address, 0xABCDEFu);
    EXPECT_NEAR(report->latitude, 43.59375, 1e-9);
    EXPECT_NEAR(report->longitude, -22.5, 1e-9);
    EXPECT_NEAR(report->pressureAltitude.value(), 914.4, 1e-9);
    EXPECT_TRUE(report->isAirborne);
    EXPECT_EQ(report->miscId, OwnShipGDL90Message::TrueTrack);
    EXPECT_EQ(report->velocity, 120.0);
    EXPECT_NEAR(report->verticalSpeed.value(), -2047 * 0.32512, 1e-9);
    EXPECT_EQ(report->track, 90.0);
    EXPECT_EQ(report->callSign, "N825V");
    fields.altitude = fields.velocity = 4095;
    fields.climb = 0x800;
    fields.accuracy = 0;
    fields.latitude = fields.longitude = 0;
    report = parseAs<TrafficGDL90Message>(fields.bytes());
    EXPECT_FALSE(report->pressureAltitude || report->velocity || report->verticalSpeed);
    EXPECT_FALSE(report->isPositionAvailable());
}

TEST_F(GDL90ParserTest, theMakersExtensions) {
    const auto ahrs = parseAs<StratuxAHRSMessage>(stratuxBytes(-205, 0x7FFF, 2700));
    EXPECT_NEAR(ahrs->roll.value(), -20.5, 1e-9);
    EXPECT_FALSE(ahrs->pitch);
    EXPECT_NEAR(ahrs->heading.value(), 270.0, 1e-9);
    EXPECT_NEAR(ahrs->slipSkid.value(), 0.1, 1e-9);
    EXPECT_NEAR(ahrs->yawRate.value(), -3.0, 1e-9);
    EXPECT_NEAR(ahrs->gLoad.value(), 9.81, 1e-9);
    EXPECT_NEAR(ahrs->pressureAltitude.value(), 8000 * 0.3048 - 1524.1524, 1e-9);
    EXPECT_NEAR(ahrs->verticalSpeed.value(), 2.54, 1e-9);
    const auto trueHeading = parseAs<FFAHRSMessage>(Bytes{0x65, 1, 0, 10, 0x7F, 0xFF, 0x0E, 0x10, 0, 90, 0xFF, 0xFF});
    EXPECT_NEAR(trueHeading->roll.value(), 1.0, 1e-9);
    EXPECT_TRUE(trueHeading->isTrueHeading && !trueHeading->pitch && !trueHeading->trueAirspeed);
    EXPECT_NEAR(trueHeading->heading.value(), 360.0, 1e-9);
    const auto magnetic = parseAs<FFAHRSMessage>(Bytes{0x65, 1, 0, 0, 0, 0, 0x83, 0x84, 0, 90, 0, 95});
    EXPECT_FALSE(magnetic->isTrueHeading);
    EXPECT_NEAR(magnetic->heading.value(), 90.0, 1e-9);
    const auto cut = parseAs<FFAHRSMessage>(Bytes{0x65, 1, 0, 0});
    EXPECT_TRUE(cut->roll && !cut->pitch && !cut->heading) << "what doesn't come isn't level flight";
    Bytes id = Bytes{0x65, 0, 1} + Bytes(8, 1);
    for (const char letter : std::string("Strat ux\x07  a b c   \xFF     "))
        id.push_back(static_cast<uint8_t>(letter));
    id.resize(38);
    id.push_back(1);
    const auto device = parseAs<FFIdMessage>(id);
    EXPECT_EQ(device->serialNumber, 0x0101010101010101u);
    EXPECT_EQ(device->deviceName, "Stratux");
    EXPECT_EQ(device->deviceLongName, "abc");
    EXPECT_TRUE(device->isOwnShipMSLAltitude);
    EXPECT_TRUE(parseAs<StratuxHeartbeatMessage>({204, 0x06})->isGPSValid);
    const auto gps = parseAs<TalosGPSMessage>(talosGpsBytes(42.0f, -28.5f, 90.0f));
    EXPECT_TRUE(gps->valid && gps->hasFix && gps->timeValid);
    EXPECT_EQ(gps->milliseconds, 100 + 255);
    EXPECT_EQ(gps->longitude, -28.5f);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(parseAs<TalosGPSMessage>(talosGpsBytes(nan, 0.0f, 0.0f))->valid);
    EXPECT_FALSE(parseAs<TalosTemperatureMessage>(talosBytes(0x41, {1000.0f}))->valid) << "bounds are exclusive";
    EXPECT_FALSE(parseAs<TalosTemperatureMessage>(talosBytes(0x41, {20.0f}, 2))->valid);
    const auto levil =
        parseAs<LevilAoAMessage>(Bytes{0x4C, 0x45, 2, 0, 55, 109, 0} + big16(-20) + big16(2400) + Bytes(13) + Bytes{7});
    EXPECT_NEAR(levil->AoA.value(), 0.55, 1e-9);
    EXPECT_EQ(levil->outsideTemperature, 59.0);
    EXPECT_EQ(levil->altitudeOffset, -20);
    EXPECT_EQ(levil->turbineSpeed, 2400);
    EXPECT_EQ(levil->speedOffset, 7);
    const auto altitude = parseAs<OwnShipGeoAltGDL90Message>(Bytes{11} + big16(-10) + big16(0x8005));
    EXPECT_NEAR(altitude->altitude, -15.24, 1e-9);
    EXPECT_TRUE(altitude->verticalWarning);
    EXPECT_EQ(altitude->verticalFigureOfMerit, 5.0);
    const auto uplink = parseAs<UATUplinkGDL90Message>(Bytes{7, 1, 0, 0} + Bytes(428, 0xAA));
    EXPECT_EQ(uplink->payload[427], 0xAA);
    EXPECT_EQ(uplink->payload[428], 0) << "behind the end";
}

} // namespace
} // namespace skyvane
