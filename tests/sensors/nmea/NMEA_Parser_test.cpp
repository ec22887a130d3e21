#include "sensors/nmea/NMEA_Parser.h"

#include "NmeaText.h"
#include "core/time/Time.h"
#include "sensors/nmea/GpsTrust.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <random>

namespace skyvane {
namespace {

const std::string Gga = "GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,";
const std::string Gsa = "GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1";
const std::string Rmc = "GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W";
const std::string LostGga = "GPGGA,123520,,,,,0,00,,,M,,M,,";

struct Collector : IAdditionalParser {
    bool parse(std::vector<std::string>* tokens, bool checksumOk) override {
        last = *tokens;
        allGood = allGood && checksumOk;
        return ++count != 0;
    }
    std::vector<std::string> last;
    int count = 0;
    bool allGood = true;
};

struct NMEA_ParserTest : testing::Test {
    NMEA_ParserTest() { setClock(&clock); }
    ~NMEA_ParserTest() override { setClock(nullptr); }

    /// How many sentences changed the data.
    int feed(NMEA_Parser& to, const std::string& bytes) {
        int count = 0;
        for (const char byte : bytes)
            count += to.doStep(byte) ? 1 : 0;
        return count;
    }
    int feed(const std::string& bytes) { return feed(parser, bytes); }
    GPS_Data gps() { return parser.getGPSData(); }

    ManualClock clock;
    NMEA_Parser parser{NMEA_Parser::GpAndGn, 2000};
};

TEST_F(NMEA_ParserTest, takesPositionAltitudeSpeedAndTrack) {
    EXPECT_EQ(feed("$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47\r\n"
                   "$GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1*39\r\n"
                   "$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A\r\n"),
              3);
    const GPS_Data data = gps();
    EXPECT_NEAR(data.latitude, 48.1173, 1e-9);
    EXPECT_NEAR(data.longitude, 11.0 + 31.0 / 60.0, 1e-9);
    EXPECT_EQ(data.fixQuality, 1);
    EXPECT_EQ(data.satelliteCount, 8);
    EXPECT_EQ(data.altitude, 545.4);
    EXPECT_EQ(data.fixType, 3);
    EXPECT_EQ(data.pdop, 2.5);
    EXPECT_EQ(data.hdop, 1.3);
    EXPECT_EQ(data.vdop, 2.1);
    EXPECT_EQ(data.status, 1);
    EXPECT_EQ(data.groundSpeed, 22.4);
    EXPECT_EQ(data.groundTrack, 84.4);
    EXPECT_TRUE(data.day == 23 && data.month == 3 && data.year == 94);
    EXPECT_EQ(data.timeStamp, ((12u * 60 + 35) * 60 + 19) * 1000);
    EXPECT_TRUE(data.timeAvailable && data.positionAvailable && data.altitudeAvailable && data.dateAvailable &&
                data.dilutionOfPrecisionAvailable && data.speedAvailable && data.groundTrackAvailable);
    EXPECT_FALSE(data.magneticVariationAvailable);
}

TEST_F(NMEA_ParserTest, readsTimesAndHemispheres) {
    const auto millisecondOf = [this](const std::string& time) {
        feed(nmea("GPRMC," + time + ",A,3352.500,S,01131.000,W,0,0,230394,,"));
        return gps().millisecond;
    };
    EXPECT_EQ(millisecondOf("123519.5"), 500);
    EXPECT_EQ(millisecondOf("123519.55"), 550);
    EXPECT_EQ(millisecondOf("123519.5555"), 555);
    EXPECT_EQ(millisecondOf("123519"), 0);
    EXPECT_NEAR(gps().latitude, -33.875, 1e-9);
    EXPECT_NEAR(gps().longitude, -11.516666666666667, 1e-9);
    for (const char* noTime : {"12351", "243519", "126019"}) {
        millisecondOf(noTime);
        EXPECT_FALSE(gps().timeAvailable) << noTime;
    }
    EXPECT_EQ(gps().timeStamp, 45319000u) << "the last one stands";
}

TEST_F(NMEA_ParserTest, halfAPositionAndOneThatIsNotOnTheEarthIsNone) {
    for (const char* place :
         {"480,N,01131.000,E", "4807.038,X,01131.000,E", "4807.038,N,01131.000,N", "9100.000,N,01131.000,E",
          "4807.038,N,18100.000,E", "4860.000,N,01131.000,E", "4x07.038,N,01131.000,E", "48-7.038,N,01131.000,E"}) {
        feed(nmea(Gga));
        ASSERT_TRUE(gps().positionAvailable);
        feed(nmea("GPRMC,123519,A," + std::string(place) + ",022.4,084.4,230394,,"));
        EXPECT_FALSE(gps().positionAvailable) << place;
        EXPECT_NEAR(gps().latitude, 48.1173, 1e-9) << place;
        EXPECT_NEAR(gps().longitude, 11.0 + 31.0 / 60.0, 1e-9) << place;
    }
    feed(nmea("GPRMC,123519,A,,,,,,,,,"));
    EXPECT_FALSE(gps().speedAvailable || gps().groundTrackAvailable || gps().dateAvailable);
}

TEST_F(NMEA_ParserTest, anAltitudeNeedsAFixAndMetres) {
    for (const char* rest : {"1,08,0.9,,M,46.9,M,,", "1,08,0.9,545.4,F,46.9,M,,", "1,08,0.9,0.0,M,46.9,M,,"}) {
        feed(nmea(Gga));
        ASSERT_TRUE(gps().altitudeAvailable);
        feed(nmea("GPGGA,123519,4807.038,N,01131.000,E," + std::string(rest)));
        EXPECT_FALSE(gps().altitudeAvailable) << rest;
    }
    feed(nmea("GPGSA,A,3,,,,,,,,,,,,,,1.3,2.1"));
    EXPECT_TRUE(gps().altitudeAvailable);
    EXPECT_FALSE(gps().dilutionOfPrecisionAvailable) << "one of the three is missing";
}

TEST_F(NMEA_ParserTest, aLossIsLearnedOnlyAfterTheTimeOut) {
    feed(nmea(Gga) + nmea(Rmc));
    clock.advance(1.9);
    EXPECT_EQ(feed(nmea(LostGga) + nmea("GPRMC,123520,V,,,,,,,230394,,") + nmea("GPGSA,A,1,,,,,,,,,,,,,,,")), 0);
    EXPECT_TRUE(gps().fixQuality == 1 && gps().status == 1 && gps().second == 19);
    clock.advance(0.2);
    EXPECT_EQ(feed(nmea(LostGga)), 1);
    EXPECT_EQ(gps().fixQuality, 0);
    EXPECT_FALSE(gps().altitudeAvailable);
    EXPECT_NEAR(gps().latitude, 48.1173, 1e-9);
    EXPECT_EQ(feed(nmea("GPRMC,123520,V,,,,,,,230394,,")), 0) << "the loss counts as accepted";
    clock.advance(2.01);
    EXPECT_EQ(feed(nmea("GPRMC,123522,V,,,,,5.0,5.0,230394,,")), 1);
    EXPECT_TRUE(gps().status == 0 && !gps().speedAvailable && !gps().groundTrackAvailable);
}

TEST_F(NMEA_ParserTest, whatWasToldBeforeASilenceDoesNotCountAnyMore) {
    feed(nmea(Gga) + nmea(Gsa) + nmea(Rmc));
    EXPECT_EQ(gpsTrust(gps(), ISensorData::Position), ISensor::GOOD);
    clock.advance(60.0);
    EXPECT_EQ(feed(nmea(Gsa)), 1);
    EXPECT_EQ(gpsTrust(gps(), ISensorData::Position), ISensor::WRONG) << "the place is a minute old";
    feed(nmea(Gga) + nmea(Rmc));
    EXPECT_EQ(gpsTrust(gps(), ISensorData::Position), ISensor::GOOD);
}

TEST_F(NMEA_ParserTest, eachVersionHasItsTalkersAndCounts) {
    const auto gn = [](std::string body) { return nmea(body.replace(1, 1, "N")); };
    struct Case {
        NMEA_Parser::NMEA_VERSION version;
        std::string bytes;
        bool isTaken;
    };
    const Case cases[] = {
        {NMEA_Parser::Gp, nmea(Gga), true},
        {NMEA_Parser::Gp, gn(Gga), false},
        {NMEA_Parser::Gp, nmea(Gga + ","), false},
        {NMEA_Parser::Gp, nmea(Rmc + ",A"), true},
        {NMEA_Parser::Gp, nmea(Rmc + ",A,A"), false},
        {NMEA_Parser::Gn, gn(Gsa), true},
        {NMEA_Parser::Gn, nmea(Gsa), false},
        {NMEA_Parser::GnSystem, gn(Gsa), false},
        {NMEA_Parser::GnSystem, gn(Gsa + ",1"), true},
        {NMEA_Parser::GnSystem, gn(Rmc + ",A,V"), true},
        {NMEA_Parser::GpAndGn, gn(Rmc + ",A,V,,,,"), true},
        {NMEA_Parser::GpAndGn, nmea(Gsa + ",1"), true},
        {NMEA_Parser::GpAndGn, nmea("GLGGA" + Gga.substr(5)), false},
        {NMEA_Parser::GpAndGn, nmea("GPGGA,123519,4807.038,N"), false},
    };
    for (const Case& one : cases) {
        NMEA_Parser fresh(one.version, 2000);
        Collector others;
        fresh.setAdditionalParser(&others);
        EXPECT_EQ(feed(fresh, one.bytes), 1);
        EXPECT_EQ(others.count, one.isTaken ? 0 : 1) << one.version << " " << one.bytes;
    }
}

TEST_F(NMEA_ParserTest, onlyGoodSentencesReachTheAdditionalParser) {
    Collector others;
    parser.setAdditionalParser(&others);
    EXPECT_EQ(feed(nmea("PXYZ,1,,two")), 1);
    EXPECT_EQ(others.last, (std::vector<std::string>{"PXYZ", "1", "", "two"}));
    EXPECT_EQ(feed("$PXYZ,1,,twx*" + nmea("PXYZ,1,,two").substr(13)), 0);
    EXPECT_EQ(feed("\r\n\n$$$*\n$*00\r\n"), 0);
    EXPECT_TRUE(others.count == 1 && others.allGood);
}

TEST_F(NMEA_ParserTest, aBrokenSentenceCostsItselfOnly) {
    const std::string good = nmea(Gga);
    EXPECT_EQ(feed(good.substr(10) + good), 1) << "before the first dollar nothing counts";
    EXPECT_EQ(feed(good.substr(0, 30) + good), 1);
    EXPECT_EQ(feed("$" + Gga + "\r\n" + good), 1) << "without a checksum";
    EXPECT_EQ(feed("$" + Gga + "*\r\n" + good), 1);
    EXPECT_EQ(feed("$" + Gga + "*047\r\n" + "$" + Gga + "*47\n" + "$" + Gga + "*47xyz$" + Gga + "*1247\n"), 3);
    EXPECT_EQ(feed("$" + std::string(100000, ',') + "\n" + good), 1);
    EXPECT_EQ(feed(nmea(Gga + std::string(2 * NmeaSentence::MaximalBytes, ','))), 0) << "its checksum is right";
    for (size_t i = 1; i + 5 < good.size(); ++i) { // any bit of the text
        std::string flipped = good;
        flipped[i] = static_cast<char>(flipped[i] ^ 0x40);
        EXPECT_EQ(feed(flipped), 0) << flipped;
    }
}

TEST_F(NMEA_ParserTest, rightChecksumsOnNonsenseHarmNothing) {
    std::mt19937 random(4711);
    const std::string alphabet = "0123456789.,,,,NSEWAVM-+eEinfx\xff";
    for (int i = 0; i < 20000; ++i) {
        std::string body = (i % 3 == 0 ? "GPGGA," : i % 3 == 1 ? "GNRMC," : "GPGSA,");
        for (int length = 0; length < 60; ++length)
            body += alphabet[random() % alphabet.size()];
        feed(nmea(body));
        const GPS_Data data = gps();
        ASSERT_TRUE(std::abs(data.latitude) <= 90.0 && std::abs(data.longitude) <= 180.0) << body;
        ASSERT_LT(data.timeStamp, 86401000u) << body;
    }
}

TEST_F(NMEA_ParserTest, allocatesNothingInSteadyState) {
    const std::string second = nmea(Gga) + nmea(Gsa) + nmea(Rmc) + nmea("GPGSV,4,1,16,02,05,307,,03,21,174,29");
    feed(second);
    const AllocationCounter counter;
    for (int i = 0; i < 10; ++i)
        feed(second);
    EXPECT_EQ(counter.count(), 0u);
}

struct LogCase {
    const char* name;
    int accepted; ///< Sentences that say that they are valid.
    double latitude, longitude;
};

class ReceiverLogs : public NMEA_ParserTest, public testing::WithParamInterface<LogCase> {};

TEST_P(ReceiverLogs, areUnderstood) {
    const std::string log = receiverLog(GetParam().name);
    if (log.empty())
        GTEST_SKIP() << "SKYVANE_DATA has no nmea/" << GetParam().name;
    EXPECT_EQ(feed(log), GetParam().accepted);
    EXPECT_NEAR(gps().latitude, GetParam().latitude, 0.001);
    EXPECT_NEAR(gps().longitude, GetParam().longitude, 0.001);
    EXPECT_TRUE(gps().positionAvailable && gps().altitudeAvailable && gps().dilutionOfPrecisionAvailable);
}

INSTANTIATE_TEST_SUITE_P(Recorded, ReceiverLogs,
                         testing::Values(LogCase{"bt451.log", 39, 55.78027, 23.57835},
                                         LogCase{"neo-m8n.log", 90, 44.0690, -121.3142},
                                         LogCase{"ublox-8.log", 288, 44.0689, -121.3143}),
                         [](const auto& log) { return std::string(log.param.name).substr(0, 3); });

} // namespace
} // namespace skyvane
