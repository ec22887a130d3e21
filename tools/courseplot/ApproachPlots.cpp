#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "courseplot/CoursePlot.h"
#include "procedures/approach/ApproachPath.h"
#include "procedures/approach/LandingRunway.h"
#include "procedures/approach/TrafficCircuit.h"

#include <cmath>

namespace skyvane {
namespace {

const ChartPosition Field(-28.5, 42.3);
constexpr double RunwayCourse = 70.0, RunwayMetres = 1200.0, Elevation = 60.0, Knots = 100.0;
constexpr double Circuit = Elevation + 1000.0 * MetresPerFoot;
constexpr uint32_t RunwayColour = 0xff455a64;
constexpr int Sides = 8;

/// A final of that length, its fix turned from the extended centre line.
ApproachPath approachPath(const CoursePlot& picture, double finalMiles, double turned) {
    const double course = RunwayCourse / DegreesPerRadian, back = (RunwayCourse + 180.0 + turned) / DegreesPerRadian;
    const double half = RunwayMetres / 2.0, final = finalMiles * MetresPerNauticalMile;
    ApproachPath path;
    path.threshold = picture.at(-half * std::sin(course), -half * std::cos(course));
    path.farThreshold = picture.at(half * std::sin(course), half * std::cos(course));
    path.course = RunwayCourse;
    path.thresholdElevation = Elevation;
    path.faf = Vector3df642ChartPosition(path.threshold, {final * std::sin(back), 0.0, final * std::cos(back)});
    path.fafAltitude = Elevation + finalMiles * 500.0 * MetresPerFoot;
    path.groundSpeed = Knots;
    path.turnRate = 3.0;
    return path;
}

void drawField(CoursePlot& picture, const ApproachPath& path) {
    picture.line(path.threshold, path.farThreshold, RunwayColour, 7.0);
    picture.mark(path.faf, "FAF");
}

ApproachStart startAt(const CoursePlot& picture, double metres, double from, double turned) {
    const double radians = from / DegreesPerRadian;
    return {picture.at(metres * std::sin(radians), metres * std::cos(radians)), 900.0, from + 180.0 + turned};
}

bool plotStraightIn(const std::string& folder) {
    CoursePlot picture(Field, 26000.0);
    const ApproachPath path = approachPath(picture, 5.0, 0.0);
    drawField(picture, path);
    for (int side = 0; side < Sides; ++side) {
        const ApproachStart start = startAt(picture, 20000.0, 45.0 * side + 10.0, 0.0);
        picture.aircraft(start.position, start.course);
        picture.path(straightInApproach(path, start));
    }
    return picture.save(folder + "straight-in.png", "Straight in, runway 07, final of 5 NM");
}

/// One picture for each side that the circuit is entered from.
bool plotCircuits(const std::string& folder, bool isLeft) {
    bool isGood = true;
    for (int side = 0; side < Sides; ++side) {
        CoursePlot picture(Field, 9000.0);
        const ApproachPath path = approachPath(picture, 1.0, 0.0);
        const double from = 45.0 * side + 10.0;
        const ApproachStart start = startAt(picture, 7500.0, from, 30.0);
        picture.path(trafficPatternApproach(path, isLeft, Circuit, start));
        picture.aircraft(start.position, start.course);
        drawField(picture, path);
        const std::string name = std::string(isLeft ? "left" : "right") + std::to_string(static_cast<int>(from));
        isGood = isGood && picture.save(folder + "pattern-" + name + ".png",
                                        std::string(isLeft ? "Left" : "Right") + " traffic, runway 07, from " +
                                            std::to_string(static_cast<int>(from)));
    }
    return isGood;
}

/// Fixes on both sides of the centre line, a final of 2 NM.
bool plotBases(const std::string& folder, bool isLeft) {
    bool isGood = true;
    for (const double turned : {-80.0, -40.0, -15.0, 15.0, 40.0, 80.0}) {
        CoursePlot picture(Field, 13000.0);
        const ApproachPath path = approachPath(picture, 2.0, turned);
        const ApproachStart start = startAt(picture, 11000.0, 340.0, 30.0);
        picture.path(trafficPatternApproach(path, isLeft, Circuit, start));
        picture.aircraft(start.position, start.course);
        drawField(picture, path);
        const std::string angle = std::to_string(static_cast<int>(turned));
        isGood = isGood && picture.save(folder + "base-" + (isLeft ? "left" : "right") + angle + ".png",
                                        std::string(isLeft ? "Left" : "Right") + " traffic, fix turned by " + angle);
    }
    return isGood;
}

/// Nothing is known but the names and the direction.
bool plotParallelRunways(const std::string& folder) {
    CoursePlot picture(Field, 6000.0);
    AirportElement airport;
    airport.position = Field;
    airport.elevationFeet = 200;
    for (const char* side : {"L", "R"}) {
        Runway runway;
        runway.lengthFeet = 6000;
        runway.widthFeet = 70;
        runway.directionDegrees = static_cast<uint32_t>(RunwayCourse);
        runway.ends[0].name = std::string("07") + side;
        runway.ends[1].name = std::string("25") + (*side == 'L' ? "R" : "L");
        airport.runways.push_back(runway);
    }
    for (int index = 0; index < 2; ++index)
        for (const bool primary : {true, false}) {
            const LandingRunway landing = *describeLandingRunway(airport, index, primary);
            ApproachPath path = approachPath(picture, 2.0, 0.0);
            path.course = landingEnd(airport, 0, index, primary)->course;
            path.threshold = landing.threshold;
            path.thresholdElevation = landing.thresholdElevation;
            const double back = (path.course + 180.0) / DegreesPerRadian, metres = 2.0 * MetresPerNauticalMile;
            path.faf =
                Vector3df642ChartPosition(path.threshold, {metres * std::sin(back), 0.0, metres * std::cos(back)});
            picture.line(landing.threshold, landing.farThreshold, RunwayColour, 5.0);
            picture.mark(landing.threshold, landing.name);
            picture.path(finalLeg(path));
        }
    return picture.save(folder + "parallel.png", "Parallel runways without surveyed thresholds");
}

} // namespace

bool plotApproaches(const std::string& folder) {
    return plotStraightIn(folder) && plotCircuits(folder, true) && plotCircuits(folder, false) &&
           plotBases(folder, true) && plotBases(folder, false) && plotParallelRunways(folder);
}

} // namespace skyvane
