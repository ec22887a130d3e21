#include "flightfeed/card/CardParser.h"
#include "flightfeed/flight/CalendarTime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace skyvane;

namespace {

// What is wrong with a line in the air; empty for nothing.
std::string inAir(const std::string& line) {
    FlightCard card;
    const auto errors = parseCard("start 42 -28 altitude 3000ft heading 010\n" + line + "\n", card);
    if (errors.empty())
        return "";
    EXPECT_EQ(errors.front().line, 2) << line;
    return errors.front().message;
}

} // namespace

TEST(CardParser, ReadsEveryKindOfLine) {
    FlightCard card;
    const auto errors =
        parseCard("# a comment\n\n"
                  "time 2024-02-29 23:59:58   # and another\n"
                  "start 42.338 1.409 elevation 2625ft heading 213\n"
                  "runway 42 1.5 elevation 800m course 030deg length 900m rise 9m glide 4\n"
                  "traffic 42.1 1.4 altitude 4000ft heading 90 speed 110kt turn -3 descend 300ftmin name SKY1\n"
                  "wind 240 15kt\nstand 2min\ntakeoff\nspeed 90kt\nclimb 500ftmin to 5000ft\n"
                  "turn left standard to 090\nturn right bank 30 by 720\nlevel 60s\nslip -5deg 10s\n"
                  "direct 42.5 1.25\nfollow 42.4 1.3 altitude 900m\nfollow 42.3 1.3\ndescend 2.5ms to "
                  "1000m\nplan\nland\nstand 1s\ntakeoff\r\n",
                  card);
    ASSERT_TRUE(errors.empty()) << errors.front().line << errors.front().message;
    EXPECT_FALSE(card.startInAir);
    EXPECT_DOUBLE_EQ(card.startPoint.longitudeDegrees, 1.409);
    EXPECT_NEAR(card.startAltitudeMetres, 800.1, 1e-9);
    EXPECT_DOUBLE_EQ(card.utcSeconds, 1709251198.0);
    EXPECT_DOUBLE_EQ(card.runway.glideDegrees, 4.0);
    EXPECT_DOUBLE_EQ(card.traffic.at(0).turnDegreesPerSecond, -3.0);
    EXPECT_NEAR(card.traffic.at(0).climbMetresPerSecond, -1.524, 1e-9);
    EXPECT_EQ(card.traffic.at(0).name, "SKY1");
    EXPECT_DOUBLE_EQ(card.runway.riseMetres, 9.0);
    ASSERT_EQ(card.steps.size(), 17u);
    EXPECT_DOUBLE_EQ(card.steps[1].seconds, 120.0);
    EXPECT_NEAR(card.steps[4].climbMetresPerSecond, 2.54, 1e-9);
    EXPECT_FALSE(card.steps[5].turnRight);
    EXPECT_DOUBLE_EQ(card.steps[5].bankDegrees, 0.0);
    EXPECT_TRUE(card.steps[6].turnRight && card.steps[6].turnByAngle);
    EXPECT_DOUBLE_EQ(card.steps[6].angleDegrees, 720.0);
    EXPECT_DOUBLE_EQ(card.steps[8].angleDegrees, -5.0);
    EXPECT_EQ(card.steps[10].line, 17);
    EXPECT_FALSE(card.steps[10].keepAltitude);
    EXPECT_DOUBLE_EQ(card.steps[10].altitudeMetres, 900.0);
    EXPECT_TRUE(card.steps[11].keepAltitude);
}

TEST(CardParser, TellsWhatIsWrongWithALine) {
    using ::testing::HasSubstr;
    EXPECT_THAT(inAir("loop"), HasSubstr("\"loop\" is no line"));
    EXPECT_THAT(inAir("level"), HasSubstr("no time"));
    EXPECT_THAT(inAir("level 60"), HasSubstr("needs the unit s or min"));
    EXPECT_THAT(inAir("level -3s"), HasSubstr("longer than nothing"));
    EXPECT_THAT(inAir("level nans"), HasSubstr("is no time"));
    EXPECT_THAT(inAir("level 1e999s"), HasSubstr("unit"));
    EXPECT_THAT(inAir("level 60s 5"), HasSubstr("\"5\" is too much"));
    EXPECT_THAT(inAir("climb 500 to 5000ft"), HasSubstr("ftmin or ms"));
    EXPECT_THAT(inAir("climb 500ftmin 5000ft"), HasSubstr("\"to\" is missing before \"5000ft\""));
    EXPECT_THAT(inAir("climb 500ftmin to 99999ft"), HasSubstr("between"));
    EXPECT_THAT(inAir("turn around"), HasSubstr("\"left\" is missing"));
    EXPECT_THAT(inAir("turn left bank 80 to 090"), HasSubstr("between 3 and 60"));
    EXPECT_THAT(inAir("turn left standard to 400"), HasSubstr("between 0 and 360"));
    EXPECT_THAT(inAir("direct 91 0"), HasSubstr("latitude"));
    EXPECT_THAT(inAir("direct 42"), HasSubstr("no longitude"));
    EXPECT_THAT(inAir("wind 240 15mph"), HasSubstr("\"mph\" is no unit"));
    EXPECT_THAT(inAir("time 2023-02-29 10:00:00"), HasSubstr("time is written"));
    EXPECT_THAT(inAir("start 42 -28 altitude 3000ft heading 010"), HasSubstr("already"));
    EXPECT_THAT(inAir("stand 5s"), HasSubstr("isn't on the ground"));
    EXPECT_THAT(inAir("takeoff"), HasSubstr("isn't on the ground"));
    EXPECT_THAT(inAir("land"), HasSubstr("no runway"));
    EXPECT_EQ(inAir("level 60s"), "");
}

TEST(CardParser, TellsEveryBadLineByItsNumber) {
    FlightCard card;
    const auto errors =
        parseCard("start 42 -28 elevation 0ft heading 010\n\nlevel 5s\nclimb\ntakeoff\nlevel x\n", card);
    ASSERT_EQ(errors.size(), 3u);
    EXPECT_EQ(errors[0].line, 3);
    EXPECT_EQ(errors[1].line, 4);
    EXPECT_EQ(errors[2].line, 6);
}

TEST(CardParser, RefusesWhatHasNoStartOrTooMuchTraffic) {
    FlightCard card;
    ASSERT_EQ(parseCard("", card).size(), 1u);
    ASSERT_EQ(parseCard("takeoff\n", card).size(), 2u);
    std::string crowd = "start 42 -28 altitude 3000ft heading 010\n";
    for (int i = 0; i < 9; ++i)
        crowd += "traffic 42 -28 altitude 3000ft heading 010 speed 90kt\n";
    const auto errors = parseCard(crowd, card);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].line, 10);
    EXPECT_EQ(card.traffic.size(), 8u);
}

TEST(CalendarTime, CrossesTheLeapDay) {
    double seconds = 0.0;
    ASSERT_TRUE(parseUtc("2024-02-28", "23:59:59", seconds));
    EXPECT_EQ(seconds, 1709164799.0);
    const CalendarTime leap = calendarTime(seconds + 1.5);
    EXPECT_EQ(leap.month, 2);
    EXPECT_EQ(leap.day, 29);
    EXPECT_EQ(leap.second, 0);
    EXPECT_NEAR(leap.hours, 0.5 / 3600.0, 1e-9);
    const CalendarTime march = calendarTime(seconds + 86401.0);
    EXPECT_EQ(march.year, 2024);
    EXPECT_EQ(march.month, 3);
    EXPECT_EQ(march.day, 1);
    EXPECT_EQ(utcSeconds(march), seconds + 86401.0);
    EXPECT_FALSE(parseUtc("2100-02-29", "00:00:00", seconds));
    EXPECT_FALSE(parseUtc("2024-2-29", "00:00:00", seconds));
    EXPECT_FALSE(parseUtc("2024-02-29", "24:00:00", seconds));
}
