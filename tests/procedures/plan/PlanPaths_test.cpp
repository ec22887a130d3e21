#include "chart/elements/AirwayElement.h"
#include "chart/elements/VORElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/ChartFixture.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/framework/ProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"
#include "procedures/plan/FlightPlan.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"

#include <cmath>
#include <iterator>
#include <random>

namespace skyvane {
namespace {

constexpr int Cases = 2000;

class Random {
public:
    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(engine_); }
    ChartPosition place() { return {between(-180.0, 180.0), between(-60.0, 60.0)}; }
    ChartPosition near(const ChartPosition& place, double metres) {
        const double course = between(0.0, 360.0) / DegreesPerRadian;
        return Vector3df642ChartPosition(place, {std::sin(course) * metres, 0.0, std::cos(course) * metres});
    }

private:
    std::mt19937 engine_{4711};
};

ProcedureValues atSpeed(double knots, double degreesPerSecond) {
    ProcedureValues values;
    values.targetGroundSpeed = knots;
    values.targetTurnRate = degreesPerSecond;
    return values;
}

double radiusMetres(double knots, double degreesPerSecond) {
    return knots * 1852.0 / 3600.0 / (degreesPerSecond / 57.29577951);
}

double courseError(double a, double b) {
    return std::fabs(Angle180(a - b));
}

/// The racetrack alone, without an entry.
CourseList racetrack(const ChartPosition& fix, const HoldingProcedure::Pattern& pattern,
                     const ProcedureValues& values) {
    const auto holding = HoldingProcedure::createHere(fix, pattern, nullptr);
    holding->setValues(values);
    holding->calculateCourseList(fix, 900.0, 0.0);
    return holding->getCourseList();
}

TEST(HoldingPath, closesAtTheFixWithTurnsOfItsRateAndLegsOfItsLength) {
    Random random;
    for (int i = 0; i < Cases; ++i) {
        const ChartPosition fix = random.place();
        const double course = random.between(0.0, 360.0), miles = random.between(0.5, 10.0);
        const double knots = random.between(60.0, 200.0), rate = random.between(1.5, 4.0);
        const CourseList list = racetrack(fix, {course, miles, i % 2 == 0}, atSpeed(knots, rate));
        ASSERT_LT(calcDistance2(list.front().position, fix), 0.01) << i;
        ASSERT_LT(calcDistance2(list.back().position, fix), 0.01) << i;
        const double radius = radiusMetres(knots, rate);
        double length = 0.0, widest = 0.0;
        for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++) {
            const auto leg = ChartPosition2Vector3df64(a->position, b->position, 0.0);
            length += leg.getLength();
            const auto place = ChartPosition2Vector3df64(fix, b->position, 0.0);
            const double across =
                place.X * std::cos(course / DegreesPerRadian) - place.Z * std::sin(course / DegreesPerRadian);
            widest = std::max(widest, i % 2 == 0 ? across : -across);
            ASSERT_EQ(b->altitude, 900.0);
        }
        // A turn in steps of 15 degrees is shorter than its circle by 0.3 %; metres east shrink towards the poles.
        EXPECT_NEAR(length, 2.0 * M_PI * radius + 2.0 * miles * 1852.0, 0.02 * (length + radius)) << i;
        EXPECT_NEAR(widest, 2.0 * radius, 0.03 * radius + 20.0) << i;
    }
}

TEST(HoldingPath, ofTheOtherSideIsItsMirror) {
    const ChartPosition fix(9.0, 0.0);
    const CourseList right = racetrack(fix, {40.0, 3.0, true}, atSpeed(100.0, 3.0));
    const CourseList left = racetrack(fix, {40.0, 3.0, false}, atSpeed(100.0, 3.0));
    ASSERT_EQ(right.size(), left.size());
    const double sine = std::sin(40.0 / DegreesPerRadian), cosine = std::cos(40.0 / DegreesPerRadian);
    for (auto a = right.begin(), b = left.begin(); a != right.end(); ++a, ++b) {
        const auto p = ChartPosition2Vector3df64(fix, a->position, 0.0),
                   q = ChartPosition2Vector3df64(fix, b->position, 0.0);
        EXPECT_NEAR(p.X * cosine - p.Z * sine, -(q.X * cosine - q.Z * sine), 0.5);
        EXPECT_NEAR(p.X * sine + p.Z * cosine, q.X * sine + q.Z * cosine, 0.5);
    }
}

TEST(HoldingPath, isEnteredOnItsCourseAtTheFixFromAnywhere) {
    Random random;
    for (int i = 0; i < Cases; ++i) {
        const ChartPosition fix = random.place();
        const double course = random.between(0.0, 360.0);
        HoldingProcedure holding(fix, {course, 2.0, true}, nullptr);
        holding.setValues(atSpeed(110.0, 3.0));
        holding.calculateCourseList(random.near(fix, random.between(5000.0, 60000.0)), 1500.0,
                                    random.between(0.0, 360.0));
        const CourseList& list = holding.getCourseList();
        auto entry = list.begin();
        while (std::next(entry)->transition)
            ++entry;
        ASSERT_LT(calcDistance2(entry->position, fix), 1.0) << i;
        ASSERT_LT(courseError(entry->course, course), 0.001) << i;
        ASSERT_GT(std::distance(entry, list.end()), 20) << i;
        for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++) // continuous
            ASSERT_LT(ChartPosition2Vector3df64(a->position, b->position, 0.0).getLength(), 100000.0);
    }
}

TEST(DirectPath, endsAtItsPlaceAndClimbsAllTheWay) {
    Random random;
    for (int i = 0; i < Cases; ++i) {
        const ChartPosition from = random.place();
        const ChartPosition to = random.near(from, random.between(100.0, 300000.0));
        DirectProcedure direct(to, nullptr);
        direct.setValues(atSpeed(random.between(0.0, 250.0), random.between(0.0, 5.0)));
        direct.setLocationAltitude(2000.0);
        direct.calculateCourseList(from, 500.0, random.between(0.0, 360.0));
        const CourseList& list = direct.getCourseList();
        ASSERT_LT(calcDistance2(list.front().position, from), 0.01) << i;
        ASSERT_LT(calcDistance2(list.back().position, to), 0.01) << i;
        ASSERT_NEAR(list.back().altitude, 2000.0, 0.01);
        for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++)
            ASSERT_GE(b->altitude, a->altitude - 1e-6) << i;
    }
}

TEST(DirectPath, isOneToTheOwnPositionToo) {
    DirectProcedure direct(ChartPosition(8.0, 48.0), nullptr);
    direct.calculateCourseList({8.0, 48.0}, 500.0, 120.0);
    EXPECT_FALSE(direct.getCourseList().empty());
    for (const CourseElement& element : direct.getCourseList())
        EXPECT_TRUE(std::isfinite(element.position.longitude) && std::isfinite(element.course));
}

/// A navaid with airways, in charts of the test's.
class InterceptPath : public ChartTest {
protected:
    InterceptPath() {
        Elements elements;
        auto navaid = std::make_unique<VORElement>();
        navaid->ident = "SKY";
        navaid->name = "SKYVANE";
        navaid->position = vor_;
        elements.push_back(std::move(navaid));
        elements.push_back(airway("T21", {8.0, 48.0}, vor_)); // comes from the south
        elements.push_back(airway("L6", vor_, {10.5, 48.5})); // leads to the east
        elements.push_back(airway("Z9", {8.5, 48.0}, {8.5, 48.4}));
        install("V", "a", elements);
        store_ = open();
        host_.charts = store_.get();
        host_.rig.load("");
        vorId_ = find(*store_, "SKY").front();
    }
    static std::unique_ptr<IChartElement> airway(const std::string& name, const ChartPosition& a,
                                                 const ChartPosition& b) {
        auto element = std::make_unique<AirwayElement>();
        element->name = name;
        element->start = a;
        element->end = b;
        element->isLowAltitude = true;
        return element;
    }

    const ChartPosition vor_{8.0, 48.5};
    ProcedureHost host_;
    std::unique_ptr<ChartStore> store_;
    int vorId_ = 0;
};

TEST_F(InterceptPath, leadsTowardsTheElementOnItsCourseAndAwayOnTheOther) {
    Random random;
    int flown = 0;
    for (int i = 0; i < Cases; ++i) {
        const double course = random.between(0.0, 360.0), offset = random.between(25.0, 60.0);
        const bool to = i % 2 == 0;
        InterceptProcedure intercept(store_.get(), vorId_, {course, offset, to}, nullptr);
        intercept.setValues(atSpeed(100.0, 3.0));
        // On the side of the line from which it leads to the element, within 25 degrees of it.
        const double from = (course + (to ? 180.0 : 0.0) + random.between(-25.0, 25.0)) / DegreesPerRadian;
        const double metres = random.between(20000.0, 60000.0);
        const ChartPosition start =
            Vector3df642ChartPosition(vor_, {std::sin(from) * metres, 0.0, std::cos(from) * metres});
        intercept.calculateCourseList(start, 1000.0, random.between(0.0, 360.0));
        const CourseList& list = intercept.getCourseList();
        ASSERT_GE(list.size(), 3u);
        if (std::prev(list.end(), 2)->transition)
            continue; // too close to the line: the shortest way instead
        ++flown;
        const double flownCourse = to ? course : course + 180.0;
        EXPECT_LT(courseError(list.back().course, flownCourse), 0.5) << i;
        const auto last = ChartPosition2Vector3df64(std::prev(list.end(), 2)->position, list.back().position, 0.0);
        EXPECT_LT(courseError(std::atan2(last.X, last.Z) * DegreesPerRadian, flownCourse), 0.6) << i;
        EXPECT_NEAR(last.getLength(), 100.0, 0.1);
    }
    EXPECT_GT(flown, Cases / 2);
}

TEST_F(InterceptPath, namesTheRadialAndTakesTheAirwaysThatAreConnected) {
    InterceptProcedureFactory factory(&host_);
    IndicatedProcedure line = factory.getPossibleProcedures(store_->getChartElement(vorId_), vorId_).front();
    EXPECT_EQ(line.text, "Intercept Airway/Radial");
    factory.prepare(line, store_->getChartElement(vorId_));
    const std::map<std::string, int> airways = factory.findConnectedAirways();
    ASSERT_EQ(airways.size(), 2u);
    EXPECT_EQ(airways.begin()->first, "L6 (Course 89)");
    EXPECT_EQ(std::next(airways.begin())->first, "T21 (Course 180)");
    using Answer = InterceptProcedureFactory::Answer;
    EXPECT_EQ(factory.useAirway(vorId_, 45.0, true), Answer::NoAirway);
    EXPECT_EQ(factory.useRadial(0.0, 24.9, true), Answer::OffsetTooSmall);
    EXPECT_EQ(factory.useRadial(90.0, 25.0, false), Answer::Good);
    EXPECT_EQ(factory.Create()->getName(), "Intercept: SKY - SKYVANE - VOR 90 (from)");
    EXPECT_EQ(factory.useAirway(airways.at("T21 (Course 180)"), 45.0, true), Answer::Good);
    const auto intercept = factory.Create();
    EXPECT_EQ(intercept->getName(), "Intercept: SKY - SKYVANE - VOR 180 (to)");
    // From the south west the airway leads north to the navaid.
    intercept->calculateCourseList({7.9, 48.1}, 1000.0, 20.0);
    EXPECT_LT(courseError(intercept->getCourseList().back().course, 0.0), 1.0);
    EXPECT_LT(intercept->getCourseList().back().position.latitude, 48.5);
    EXPECT_FALSE(factory.isMetBeyond(intercept->getCourseList()));
    intercept->calculateCourseList({7.6, 48.4}, 1000.0, 20.0); // too near for 45 degrees
    EXPECT_TRUE(factory.isMetBeyond(intercept->getCourseList()));
}

TEST_F(InterceptPath, holdsOnTheWayInOrOnTheHeadingWhenTooNear) {
    HoldingProcedureFactory factory(&host_);
    host_.aircraft.Vno = 120;
    auto* navaid = store_->getChartElement(vorId_);
    IndicatedProcedure line{vorId_, "Holding", &factory, {}};
    factory.prepare(line, navaid);
    EXPECT_EQ(factory.getPattern().course, 0.0); // nobody knows anything
    EXPECT_EQ(factory.Create()->getLocationType(), ProcedureLocation::ChartElement);
    EXPECT_EQ(factory.Create()->getValues().targetGroundSpeed, 120.0);
    host_.rig.load("SensorCount=2\nD2=1\nD4=1\n[S1]\nFactoryIndex=0\n");
    FakeSensor* sensor = host_.rig.sensor(1);
    sensor->put<Heading_Data>(ISensorData::Heading, 77.0, 0u);
    auto* place = sensor->put<Position_Data>(ISensorData::Position, 8.0, 48.3, 0u); // 22 km south
    factory.prepare(line, navaid);
    EXPECT_NEAR(factory.getPattern().course, 0.0, 0.01);
    place->latitude = 48.483; // 1.9 km; two radii are 2.4
    factory.prepare(line, navaid);
    EXPECT_EQ(factory.getPattern().course, 77.0);
    line.parameters["cpos"] = "1";
    factory.prepare(line, navaid);
    const auto here = factory.Create();
    EXPECT_EQ(here->getLocationType(), ProcedureLocation::None);
    EXPECT_EQ(here->getName(), "Holding at: User Position");
    EXPECT_FALSE(here->shallSwitchToNextProc());
}

TEST(FlightPlan, keepsACurrentProcedureThroughEveryChange) {
    FlightPlan plan;
    EXPECT_EQ(plan.getCurrent()->getType(), IProcedure::None);
    EXPECT_FALSE(plan.next() || plan.previous() || plan.moveCurrentForwards() || plan.moveCurrentBackwards());
    plan.deleteCurrent();
    const auto direct = [](double longitude) {
        return std::make_unique<DirectProcedure>(ChartPosition(longitude, 50.0), nullptr);
    };
    const auto order = [&plan] {
        std::string text;
        for (const auto& procedure : plan.getProcedures())
            text += std::to_string(static_cast<int>(procedure->getLocationPosition().longitude)) + " ";
        return text + "at " + std::to_string(plan.getCurrentIndex());
    };
    plan.replaceCurrent(direct(1.0));
    plan.add(direct(2.0));
    plan.addBeforeCurrent(direct(3.0));
    plan.addAfterCurrent(direct(4.0));
    EXPECT_EQ(order(), "1 3 4 2 at 2");
    EXPECT_TRUE(plan.moveCurrentBackwards() && plan.moveCurrentBackwards());
    EXPECT_FALSE(plan.moveCurrentBackwards());
    EXPECT_EQ(order(), "4 1 3 2 at 0");
    EXPECT_TRUE(plan.moveCurrentForwards());
    EXPECT_EQ(order(), "1 4 3 2 at 1");
    plan.replaceCurrent(direct(5.0));
    plan.setCurrent(9);
    plan.setCurrent(3);
    plan.deleteCurrent();
    EXPECT_EQ(order(), "1 5 3 at 2");
    plan.setCurrent(0);
    plan.deleteCurrent();
    EXPECT_EQ(order(), "5 3 at 0");
    plan.deleteAll();
    EXPECT_EQ(plan.getCurrent()->getName(), "Unspecified");
}

TEST(FlightPlan, chainsThePathsFromTheCurrentProcedureOn) {
    FlightPlan plan;
    for (const double longitude : {9.0, 10.0, 11.0})
        plan.add(std::make_unique<DirectProcedure>(ChartPosition(longitude, 50.0), nullptr));
    plan.get(1)->setLocationAltitude(2000.0);
    plan.setCurrent(1);
    plan.calculateCourseLists({9.5, 50.1}, 700.0, 120.0);
    EXPECT_TRUE(plan.get(0)->getCourseList().empty());
    const CourseList &first = plan.get(1)->getCourseList(), &second = plan.get(2)->getCourseList();
    EXPECT_LT(calcDistance2(first.front().position, {9.5, 50.1}), 0.01);
    EXPECT_LT(calcDistance2(first.back().position, second.front().position), 0.01);
    EXPECT_NEAR(first.back().altitude, 2000.0, 0.01);
    EXPECT_NEAR(second.back().altitude, 2000.0, 0.01);
    EXPECT_LT(courseError(second.front().course, first.back().course), 0.01);
    plan.calculateCourseLists({9.5, std::nan("")}, 700.0, 120.0); // nobody knows: the paths stay
    EXPECT_LT(calcDistance2(plan.get(1)->getCourseList().front().position, {9.5, 50.1}), 0.01);
}

} // namespace
} // namespace skyvane
