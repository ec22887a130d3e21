#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/CourseTurns.h"
#include "procedures/preview/CoursePicture.h"
#include "procedures/preview/PathFigures.h"
#include "procedures/preview/RunwayArrow.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

using Point = PreviewFrame::Point;

const PreviewFrame::Rect picture(40, 300, 340, 520);

ChartPosition movedFrom(const ChartPosition& from, double course, double metres) {
    const double radians = course / DegreesPerRadian;
    return Vector3df642ChartPosition(from, {std::sin(radians) * metres, 0.0, std::cos(radians) * metres});
}

/// Of a place as seen from the picture's middle, clockwise from above.
double directionOf(Point place) {
    const Point middle = picture.getCenter();
    return std::atan2(place.X - middle.X, middle.Y - place.Y) * DegreesPerRadian;
}

TEST(Preview, holdsAllPlacesWhereverOnTheEarth) {
    std::mt19937 random(815);
    std::uniform_real_distribution<double> course(0.0, 360.0), metres(0.0, 60000.0);
    for (const ChartPosition& start : {ChartPosition(9.0, 49.0), ChartPosition(179.99, -17.0), ChartPosition(0.0, 0.0)})
        for (int round = 0; round < 200; ++round) {
            std::vector<ChartPosition> places;
            for (int i = 0; i < 5; ++i)
                places.push_back(movedFrom(start, course(random), metres(random)));
            const PreviewFrame frame = PreviewFrame::fit(places, picture, 0.8);
            for (const ChartPosition& place : places)
                EXPECT_TRUE(picture.isPointInside(frame.toPixels(place))) << place.longitude << " " << place.latitude;
            const Point a = frame.toPixels(places[0]), b = frame.toPixels(places[1]);
            EXPECT_NEAR(std::hypot(a.X - b.X, a.Y - b.Y) / frame.getPixelsPerMetre(),
                        calcDistance2(places[0], places[1]), 0.02 * 120000.0);
        }
    const PreviewFrame near = PreviewFrame::fit({{9.0, 49.0}}, picture, 1.0);
    EXPECT_EQ(near.toPixels({9.0, 49.0}), picture.getCenter());
    EXPECT_NEAR(near.getPixelsPerMetre(), 220.0 / 400.0, 1e-9) << "one place isn't drawn larger than 400 m";
}

TEST(Preview, keepsTheAircraftOnThePicture) {
    const ChartPosition centre(9.0, 49.0);
    const PreviewFrame frame(centre, 0.01, picture); // 30 x 22 km
    constexpr int side = 40;
    EXPECT_FALSE(placeAircraft(frame, movedFrom(centre, 90.0, 14900.0), side).isOutside);
    EXPECT_TRUE(placeAircraft(frame, movedFrom(centre, 90.0, 15100.0), side).isOutside);
    EXPECT_TRUE(placeAircraft(frame, movedFrom(centre, 0.0, 11100.0), side).isOutside);
    for (int course = 0; course < 360; course += 7)
        for (const double metres : {23000.0, 400000.0, 9000000.0}) {
            const AircraftMark mark = placeAircraft(frame, movedFrom(centre, course, metres), side);
            ASSERT_TRUE(mark.isOutside);
            EXPECT_NEAR(Angle180(directionOf(mark.place) - course), 0.0, 1.0) << metres;
            const PreviewFrame::Rect square(mark.place.X - side / 2, mark.place.Y - side / 2, mark.place.X + side / 2,
                                            mark.place.Y + side / 2);
            PreviewFrame::Rect cut = square;
            cut.clipAgainst(picture);
            EXPECT_EQ(cut, square);
        }
}

TEST(Preview, drawsAPathInOneLineWithArrowsAlongIt) {
    const ChartPosition start(9.0, 49.0);
    CourseList course = calcLine(start, 30.0, 10.0, 0.0, 0.0, 1, true);
    course.splice(course.end(),
                  calcTurn(course.back().position, 30.0, 210.0, 3.0, 120.0, 0.0f, 0.0f, false, 15.0, true));
    std::vector<ChartPosition> all;
    for (const CourseElement& element : course)
        all.push_back(element.position);
    const CoursePicture whole = pictureOf(course, PreviewFrame::fit(all, picture, 0.9), 25);
    ASSERT_GT(whole.lines.size(), 10u);
    double length = 0.0;
    for (size_t i = 0; i < whole.lines.size(); ++i) {
        const CoursePicture::Line& line = whole.lines[i];
        EXPECT_TRUE(i == 0 || whole.lines[i - 1].to == line.from);
        length += std::hypot(line.to.X - line.from.X, line.to.Y - line.from.Y);
    }
    EXPECT_TRUE(whole.lines.front().transition);
    EXPECT_FALSE(whole.lines.back().transition);
    EXPECT_NEAR(static_cast<double>(whole.arrows.size()), length / 25.0, 1.0);
    for (const CoursePicture::Arrow& arrow : whole.arrows)
        EXPECT_TRUE(!arrow.transition || std::fabs(arrow.courseDegrees - 30.0) < 3.0);

    // What is proper decides on the scale; the way there goes to the edge and no farther.
    const std::vector<ChartPosition> proper = placesOf(course);
    EXPECT_LT(proper.size(), course.size());
    const CoursePicture cut = pictureOf(course, PreviewFrame::fit(proper, picture, 0.5), 25);
    for (const CoursePicture::Line& line : cut.lines)
        for (const Point& end : {line.from, line.to})
            EXPECT_TRUE(picture.isPointInside(end));
    EXPECT_TRUE(pictureOf({}, PreviewFrame(start, 1.0, picture), 25).lines.empty());
    EXPECT_TRUE(placesOf({}).empty());
    EXPECT_EQ(placesOf(calcLine(start, 30.0, 10.0, 0.0, 0.0, 1, true)).size(),
              calcLine(start, 30.0, 10.0, 0.0, 0.0, 1, true).size());
}

AirportElement fieldWithRunway(double direction) {
    AirportElement airport;
    airport.position = {9.0, 49.0};
    Runway runway;
    runway.lengthFeet = 6000;
    runway.directionDegrees = static_cast<uint32_t>(direction);
    for (const bool first : {true, false}) {
        RunwayEnd& end = runway.ends[first ? 0 : 1];
        end.isThresholdKnown = true;
        end.threshold = movedFrom(movedFrom(airport.position, 70.0, 500.0), direction, first ? -900.0 : 900.0);
    }
    airport.runways = {runway};
    return airport;
}

TEST(Preview, pointsToEachRunwayEndWithinThePicture) {
    const PreviewFrame::Rect square(10, 20, 388, 398);
    const double side = 0.2 * square.getWidth();
    for (int direction = 0; direction < 360; direction += 5) {
        const AirportElement airport = fieldWithRunway(direction);
        for (const bool primary : {true, false}) {
            const auto arrow = pointToRunway(airport, {0, 0, 0.0, primary}, square);
            ASSERT_TRUE(arrow);
            const double landing = direction + (primary ? 0.0 : 180.0);
            EXPECT_NEAR(Angle180(arrow->courseDegrees - landing), 0.0, 0.5);
            const double back = (landing + 180.0) / DegreesPerRadian;
            const Point tail(arrow->threshold.X + static_cast<int>(1.2 * side * std::sin(back)),
                             arrow->threshold.Y - static_cast<int>(1.2 * side * std::cos(back)));
            EXPECT_TRUE(square.isPointInside(tail)) << direction << " " << tail.X << " " << tail.Y;
        }
        const auto first = pointToRunway(airport, {0, 0, 0.0, true}, square);
        EXPECT_EQ(first->threshold, sketchFrame(airport, square).toPixels(airport.runways[0].ends[0].threshold));
    }
    EXPECT_FALSE(pointToRunway(fieldWithRunway(0), {0, 1, 0.0, true}, square));
    EXPECT_FALSE(pointToRunway(fieldWithRunway(0), {0, -1, 0.0, true}, square));
}

TEST(PathFigures, areThoseOfThePilotsRules) {
    EXPECT_NEAR(turnRadiusMiles(3.0, 120.0), 0.637, 0.001); // knots / 188.5
    EXPECT_EQ(turnRadiusMiles(0.0, 120.0), 0.0);
    EXPECT_NEAR(bankDegrees(3.0, 120.0), 18.2, 0.1);
    EXPECT_NEAR(glideAngleDegrees(318.4), 3.0, 0.01);
    EXPECT_LT(glideAngleDegrees(-100.0), 0.0);
    EXPECT_DOUBLE_EQ(descentFeetPerMinute(500.0, 120.0), 1000.0);
}

} // namespace
} // namespace skyvane
