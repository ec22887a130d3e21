#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChartElementSource.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/approach/FinalApproach.h"
#include "procedures/approach/TrafficPatternApproach.h"
#include "procedures/framework/IProcedureHost.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

constexpr int AirportId = 17;

class OneAirport : public IChartElementSource {
public:
    IChartElement* getChartElement(int id) override { return isThere && id == airportId ? &airport : nullptr; }
    IArea* getArea(int) override { return nullptr; }
    std::list<int> findChartElementsInVicinity(ChartPosition position, double range, bool) override {
        const bool isNear = calcDistance2(position, airport.position) <= range * MetresPerNauticalMile;
        return isNear && isThere ? std::list<int>{airportId} : std::list<int>();
    }

    AirportElement airport;
    int airportId = AirportId;
    bool isThere = true;
};

class Host : public IProcedureHost {
public:
    IChartElementSource* getCharts() override { return &charts; }
    SensorManager* getSensorManager() override { return nullptr; }
    Aircraft& getCurrentAircraft() override { return aircraft; }
    void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeout) override {
        EXPECT_EQ(level, MESSAGE_RED);
        EXPECT_EQ(timeout, -1);
        messages[owner] = text;
    }
    void removeMessage(void* owner) override { messages.erase(owner); }
    bool says(const std::string& text) const {
        for (const auto& [owner, said] : messages)
            if (said == text)
                return true;
        return false;
    }

    OneAirport charts;
    Aircraft aircraft;
    std::map<void*, std::string> messages;
};

class Approaches : public testing::Test {
protected:
    Approaches() : factory(&host) {
        AirportElement& airport = host.charts.airport;
        airport.position = {9.0, 49.0};
        airport.name = "Field";
        airport.elevationFeet = 530;
        airport.accuracy = 3;
        Runway runway;
        runway.lengthFeet = 3000;
        runway.widthFeet = 75;
        runway.directionDegrees = 90;
        runway.accuracy = 3;
        runway.ends[0].name = "09";
        runway.ends[1].name = "27";
        runway.ends[0].isThresholdKnown = runway.ends[1].isThresholdKnown = true;
        runway.ends[0].threshold = {8.994, 49.0};
        runway.ends[1].threshold = {9.006, 49.0};
        airport.runways = {runway};
        factory.setGeneralStandardValues();
    }

    Runway& runway() { return host.charts.airport.runways[0]; }
    std::unique_ptr<IProcedure> make(size_t line, size_t profile) {
        auto lines = factory.getPossibleProcedures(&host.charts.airport, host.charts.airportId);
        EXPECT_EQ(factory.choose(*std::next(lines.begin(), static_cast<long>(line)), &host.charts.airport), "");
        factory.selectProfile(profile);
        return factory.Create();
    }
    CourseList fly(IProcedure& procedure) {
        procedure.calculateCourseList({9.2, 49.1}, 1500.0, 200.0);
        return procedure.getCourseList();
    }

    Host host;
    ApproachProcedureFactory factory;
};

TEST_F(Approaches, areOfferedForEachRunwayEnd) {
    runway().ends[1].name.clear();
    host.charts.airport.runways.push_back(Runway());
    const auto lines = factory.getPossibleProcedures(&host.charts.airport, AirportId);
    std::string texts;
    for (const IndicatedProcedure& line : lines)
        texts += line.text + "|";
    EXPECT_EQ(texts, "RWY 09 Approach|RWY 27 Approach|RWY 36 Approach|RWY 18 Approach|");
    EXPECT_EQ(lines.back().parameters.at("RWY"), "1");
    EXPECT_EQ(lines.back().parameters.at("otherSide"), "1");
    EXPECT_FALSE(factory.areProceduresPossible(nullptr));
    EXPECT_TRUE(factory.getPossibleProcedures(nullptr, 0).empty());
    std::wstring labels;
    for (const auto& profile : factory.getProfiles())
        labels += profile->getLabel() + L"|";
    EXPECT_EQ(labels, L"10NM Final|5NM Final|Left Traffic Pattern|Right Traffic Pattern|");
}

TEST_F(Approaches, areMadeFromTheProfileChosen) {
    const auto final = make(1, 1);
    EXPECT_EQ(final->getName(), "App: RWY 27 Field");
    EXPECT_EQ(final->getLocationChartIndex(), AirportId);
    auto* straight = dynamic_cast<FinalApproach*>(final.get());
    ASSERT_NE(straight, nullptr);
    // 5 NM east of the eastern threshold; 5 * 500 + 530 feet, in whole hundreds.
    EXPECT_NEAR(calcDistance2(straight->getFafPosition(), runway().ends[1].threshold), 5 * 1852.0, 25.0);
    EXPECT_GT(straight->getFafPosition().longitude, 9.006);
    EXPECT_NEAR(straight->getFafAltitude(), 3000 * 0.3048, 1e-6);
    const CourseList list = fly(*final);
    EXPECT_NEAR(list.back().altitude, 530 * 0.3048 + 1.5 * 15.24, 1e-3); // 50 ft tolerance is watched

    const auto pattern = make(0, 3);
    auto* circuit = dynamic_cast<TrafficPatternApproach*>(pattern.get());
    ASSERT_NE(circuit, nullptr);
    EXPECT_FALSE(circuit->isLeftTraffic());
    EXPECT_NEAR(circuit->getCircuitAltitude(), 1530 * 0.3048, 1e-9);
    EXPECT_GT(fly(*pattern).size(), 40u);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(Approaches, ofCircuitsEndBehindTheCircuitNotWhereItIsEntered) {
    for (const size_t profile : {2, 3}) {
        const auto pattern = make(0, profile);
        const CourseList list = fly(*pattern);
        const CourseElement& entered = list.back();
        pattern->updatePosRelated(entered.position, entered.altitude, 100.0, entered.course);
        EXPECT_FALSE(pattern->shallSwitchToNextProc()) << "the circuit lies ahead";
        const double back = calcBearing2(entered.position, std::prev(list.end(), 2)->position) / DegreesPerRadian;
        const ChartPosition around =
            Vector3df642ChartPosition(entered.position, {std::sin(back) * 150.0, 0.0, std::cos(back) * 150.0});
        pattern->updatePosRelated(around, entered.altitude, 100.0, entered.course);
        EXPECT_TRUE(pattern->shallSwitchToNextProc());
    }
}

TEST_F(Approaches, ofCircuitsTellOfAFixAboveTheCircuit) {
    const auto warning = [this](size_t profile, int miles) {
        make(0, profile);
        factory.getValues().setFinalLength(miles);
        return dynamic_cast<TrafficPatternApproach&>(*factory.Create()).climbWarning();
    };
    EXPECT_EQ(warning(2, 1), "");
    EXPECT_EQ(warning(3, 2), "") << "begins on it";
    EXPECT_EQ(warning(3, 4), "FAF above circuit (1530 ft):\nthe turn to final climbs");
}

TEST(ApproachValues, hangTogether) {
    ApproachValues values;
    values.setElevation(530);
    values.setUsual(10);
    EXPECT_EQ(values.getFafAltitude(), 5500);
    EXPECT_EQ(values.getDescentRate(), 500);
    values.setUsual(1);
    EXPECT_EQ(values.getFafAltitude(), 1000);
    EXPECT_EQ(values.getDescentRate(), 470);
    values.setFinalLength(4);
    EXPECT_EQ(values.getFafAltitude(), 2400); // 4 * 470 + 530
    EXPECT_EQ(values.getDescentRate(), 470);
    values.setFafAltitude(3000);
    EXPECT_EQ(values.getDescentRate(), 620);
    values.setFinalLength(0);
    EXPECT_EQ(values.getFafAltitude(), 500);
    EXPECT_EQ(values.getDescentRate(), 620);
    EXPECT_NEAR(values.fafAltitudeMetres(0.5) / 0.3048, 840.0, 1e-9);
    values.setFinalLength(2);
    values.setFafAltitude(-2000); // below the runway: not lower than the rate needs at the shortest final
    EXPECT_EQ(values.getDescentRate(), -1270);
    EXPECT_NEAR(values.fafAltitudeMetres(0.1) / 0.3048, 403.0, 1e-9);
}

TEST_F(Approaches, withoutLengthBeginAtTheShortestFinal) {
    auto lines = factory.getPossibleProcedures(&host.charts.airport, AirportId);
    for (const auto& [profile, miles] : {std::pair<size_t, double>{0, 0.1}, {2, 0.5}}) {
        ASSERT_EQ(factory.choose(lines.front(), &host.charts.airport), "");
        factory.selectProfile(profile);
        factory.getValues().setFinalLength(0);
        const auto made = factory.Create();
        const auto& approach = dynamic_cast<IApproach&>(*made);
        EXPECT_NEAR(calcDistance2(approach.getFafPosition(), runway().ends[0].threshold), miles * 1852.0, 1.0);
        EXPECT_GE(approach.getFafAltitude() / 0.3048, 530 + miles * 400);
        EXPECT_FALSE(fly(*made).empty());
    }
}

TEST_F(Approaches, refuseWhatTheyCantKnow) {
    auto lines = factory.getPossibleProcedures(&host.charts.airport, AirportId);
    host.charts.airport.elevationFeet = AirportElement::UnknownElevation;
    EXPECT_EQ(factory.choose(lines.front(), &host.charts.airport), "Error: Unknown elevation.");
    host.charts.airport.elevationFeet = 0;
    lines.front().parameters["RWY"] = "-3";
    EXPECT_NE(factory.choose(lines.front(), &host.charts.airport), "");
    EXPECT_NE(factory.choose(lines.back(), nullptr), "");
    EXPECT_EQ(factory.choose(lines.back(), &host.charts.airport), "");
    host.charts.isThere = false;
    EXPECT_EQ(factory.Create(), nullptr);
}

TEST_F(Approaches, warnOfUnknownThresholdsAndLowAccuracy) {
    runway().ends[0].isThresholdKnown = false;
    runway().accuracy = 2;
    auto approach = make(0, 0);
    fly(*approach);
    EXPECT_TRUE(host.says("THRESHOLD POSITION UNKNOWN:\nusing extrapolated position"));
    EXPECT_TRUE(host.says("WARNING: Approach procedure\nwith high and low accuracy"));
    runway().lengthFeet = 0;
    host.charts.airport.accuracy = 0;
    approach = make(0, 0);
    EXPECT_TRUE(host.messages.empty()); // those of the one before went with it
    fly(*approach);
    EXPECT_TRUE(host.says("THRESHOLD POSITION UNKNOWN:\nusing extrapolated position\nRUNWAY LENGTH UNKNOWN"));
    EXPECT_TRUE(host.says("WARNING: Approach procedure\nwith unknown accuracy"));
    host.charts.airport.accuracy = 1;
    approach = make(1, 0); // its own threshold is known
    fly(*approach);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_TRUE(host.says("WARNING: Approach procedure\nwith medium accuracy"));
}

TEST_F(Approaches, keepParallelRunwaysApart) {
    for (RunwayEnd& end : runway().ends)
        end.isThresholdKnown = false;
    const auto thresholdOf = [&](const char* label, uint32_t width, bool primary) {
        runway().ends[0].name = label;
        runway().widthFeet = width;
        return describeLandingRunway(host.charts.airport, 0, primary)->threshold;
    };
    const ChartPosition middle = thresholdOf("09C", 75, true);
    const auto northOf = [&](const ChartPosition& place) { return ChartPosition2Vector3df64(middle, place, 0.0).Z; };
    EXPECT_NEAR(northOf(thresholdOf("09L", 50, true)), 0.3048 * 4 * 50, 0.01);
    EXPECT_NEAR(northOf(thresholdOf("09R", 50, true)), -0.3048 * 4 * 50, 0.01);
    EXPECT_NEAR(northOf(thresholdOf("09L", 50, false)), 0.3048 * 4 * 50, 0.01);
    EXPECT_NEAR(northOf(thresholdOf("09R", 200, true)), -91.44, 0.01);
    EXPECT_NEAR(northOf(thresholdOf("09L", uint32_t(-1), true)), 36.576, 0.01);
    EXPECT_NEAR(northOf(thresholdOf("", 200, true)), 0.0, 0.01);
    EXPECT_NEAR(describeLandingRunway(host.charts.airport, 0, true)->length, 914.4, 1e-9);
    runway().lengthFeet = 0;
    EXPECT_EQ(describeLandingRunway(host.charts.airport, 0, true)->length, LandingRunway::UnknownLengthMetres);
}

TEST_F(Approaches, surviveSavingAndAnotherChart) {
    const auto saved = make(1, 2);
    IniFile document;
    saved->insertInIni(&host.charts, &document, "Home", 4);
    EXPECT_EQ(document.get("Home", "proc[4].appId"), "TrafficPatternApproach");
    EXPECT_EQ(document.get("Home", "proc[4].threshold.name"), "27");
    EXPECT_EQ(document.get("Home", "proc[4].isLeftTraffic"), "1");

    // Another number, another runway in front, and the thresholds a little elsewhere.
    host.charts.airportId = 4711;
    host.charts.airport.runways.insert(host.charts.airport.runways.begin(), Runway());
    const auto read = factory.CreateFromIni(&host.charts, &document, "Home", 4);
    ASSERT_NE(read, nullptr);
    auto& approach = dynamic_cast<TrafficPatternApproach&>(*read);
    ASSERT_TRUE(approach.getRunway());
    EXPECT_EQ(approach.getRunway()->runwayIndex, 1);
    EXPECT_FALSE(approach.getRunway()->primary);
    EXPECT_EQ(approach.getLocationChartIndex(), 4711);
    EXPECT_EQ(read->getName(), "App: RWY 27 Field");
    const CourseList before = fly(*saved), after = fly(*read);
    ASSERT_EQ(before.size(), after.size());
    EXPECT_LT(calcDistance2(before.back().position, after.back().position), 0.1);

    // Renamed since: the nearest threshold.
    host.charts.airport.runways[1].ends[1].name = "28";
    read->OnChartChanged(&host.charts);
    EXPECT_EQ(read->getName(), "App: RWY 28 Field");
}

TEST_F(Approaches, thatLostTheirRunwaySaySoAndStayInThePlan) {
    auto approach = make(0, 0);
    fly(*approach);
    const auto runways = host.charts.airport.runways;
    host.charts.airport.runways.clear();
    approach->OnChartChanged(&host.charts);
    EXPECT_TRUE(host.says("Invalid Approach Procedure: Airport or runway no -> 09"));
    EXPECT_TRUE(fly(*approach).empty());
    host.charts.isThere = false;
    approach->OnChartChanged(nullptr);
    EXPECT_TRUE(fly(*approach).empty());
    IniFile document;
    approach->insertInIni(nullptr, &document, "p", 0);
    EXPECT_EQ(document.get("p", "proc[0].threshold.name"), "09");
    host.charts.airport.elevationFeet = AirportElement::UnknownElevation;
    host.charts.airport.runways = runways;
    host.charts.isThere = true;
    approach = factory.CreateFromIni(&host.charts, &document, "p", 0);
    ASSERT_NE(approach, nullptr);
    EXPECT_TRUE(fly(*approach).empty()); // a plain position since the airport was gone
    document.set("p", "proc[0].loctype", "2");
    document.set("p", "proc[0].ownType", "7");
    approach = factory.CreateFromIni(&host.charts, &document, "p", 0);
    EXPECT_TRUE(fly(*approach).empty());
    EXPECT_TRUE(host.says("Error: Unknown elevation."));
}

TEST_F(Approaches, meetTheRunwayAt65DegreesAtMostWhateverWasSaved) {
    const ChartPosition threshold = runway().ends[0].threshold;
    for (const int profile : {0, 2})
        for (const auto& [off, flown] : {std::pair(0.0, 0.0), {-64.0, -64.0}, {80.0, 65.0}, {-175.0, -65.0}}) {
            const std::string angle = std::to_string(std::abs(static_cast<int>(off)));
            const double back = (90.0 + off + 180.0) / DegreesPerRadian;
            const ChartPosition fix =
                Vector3df642ChartPosition(threshold, {std::sin(back) * 8000.0, 0.0, std::cos(back) * 8000.0});
            IniFile document, again;
            make(0, profile)->insertInIni(&host.charts, &document, "p", 0);
            document.set("p", "proc[0].fafPos.longitude", std::to_string(fix.longitude));
            document.set("p", "proc[0].fafPos.latitude", std::to_string(fix.latitude));
            auto approach = factory.CreateFromIni(&host.charts, &document, "p", 0);
            const CourseList path = fly(*approach);
            const auto end = std::find_if(path.begin(), path.end(), [&](const CourseElement& element) {
                return calcDistance2(element.position, threshold) < 0.1;
            });
            ASSERT_NE(end, path.end());
            EXPECT_NEAR(Angle180(calcBearing2(std::prev(end)->position, end->position) - 90.0), flown, 0.2) << off;
            EXPECT_EQ(host.says("WARNING: Final at " + angle + " degrees to the runway\nwas turned to 65"),
                      off != flown)
                << off;
            approach->insertInIni(&host.charts, &again, "p", 0);
            EXPECT_NEAR(toDouble(again.get("p", "proc[0].fafPos.longitude")), fix.longitude, 1e-6);
            approach.reset();
            EXPECT_TRUE(host.messages.empty());
        }
}

TEST_F(Approaches, believeNoDocument) {
    IniFile good;
    make(0, 2)->insertInIni(&host.charts, &good, "p", 0);
    const auto readWith = [&](const char* key, const char* value) {
        IniFile document = good;
        if (value)
            document.set("p", std::string("proc[0].") + key, value);
        else
            document.removeValue("p", std::string("proc[0].") + key);
        return factory.CreateFromIni(&host.charts, &document, "p", 0);
    };
    for (const char* key : {"fafAlt", "fafPos.longitude", "appId", "tpAltitude"})
        for (const char* value : {static_cast<const char*>(nullptr), "", "nan", "1e300", "x"})
            EXPECT_EQ(readWith(key, value), nullptr) << key << " = " << (value ? value : "none");
    for (const char* key : {"threshold.latitude", "threshold.name", "isLeftTraffic"})
        for (const char* value : {static_cast<const char*>(nullptr), "", "-1e300", "x"}) {
            const auto approach = readWith(key, value);
            ASSERT_NE(approach, nullptr) << key;
            EXPECT_FALSE(fly(*approach).empty());
        }
    EXPECT_TRUE(fly(*readWith("ownType", "3")).empty()); // not an airport
    IniFile empty;
    EXPECT_EQ(factory.CreateFromIni(nullptr, &empty, "p", 99), nullptr);
}

TEST_F(Approaches, flyWhateverTheChartHolds) {
    for (const ChartPosition place : {ChartPosition(0.0, 90.0), {180.0, 60.0}, {-180.0, -89.95}, {359.9, 0.0}})
        for (const uint32_t size : {0u, 1u, 200000u, 4000000000u})
            for (const uint32_t direction : {0u, 359u, 4000000000u}) {
                Runway wild;
                wild.lengthFeet = wild.widthFeet = size;
                wild.directionDegrees = direction;
                wild.ends[0].name = "1L";
                host.charts.airport.position = place;
                host.charts.airport.elevationFeet = static_cast<int32_t>(size / 2);
                host.charts.airport.runways = {wild};
                for (size_t profile = 0; profile < 4; ++profile) {
                    const auto approach = make(1, profile);
                    ASSERT_NE(approach, nullptr);
                    const CourseList list = fly(*approach);
                    ASSERT_GT(list.size(), 4u);
                    for (const CourseElement& element : list)
                        ASSERT_TRUE(std::isfinite(element.position.latitude) &&
                                    std::isfinite(element.position.longitude) && std::isfinite(element.altitude) &&
                                    std::isfinite(element.course));
                }
            }
}

} // namespace
} // namespace skyvane
