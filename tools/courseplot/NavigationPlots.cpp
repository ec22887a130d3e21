#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "core/ini/IniFile.h"
#include "courseplot/CoursePlot.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/holding/HoldingProcedure.h"
#include "procedures/intercept/InterceptProcedure.h"

#include <cmath>
#include <memory>

namespace skyvane {
namespace {

const ChartPosition Place(-28.5, 42.3);
constexpr double Altitude = 900.0, Knots = 110.0;
constexpr uint32_t LineColour = 0xff9aa5b1;
constexpr int Sides = 8;

ProcedureValues flownAt(double knots) {
    ProcedureValues values;
    values.targetGroundSpeed = knots;
    return values;
}

/// From eight sides of the place, on a course that is turned from the way to it.
template <class Make>
void fromAllSides(CoursePlot& picture, double metres, double turned, Make make) {
    for (int side = 0; side < Sides; ++side) {
        const double from = 360.0 / Sides * side + 10.0, radians = from / DegreesPerRadian;
        const ChartPosition start = picture.at(metres * std::sin(radians), metres * std::cos(radians));
        const double course = from + 180.0 + turned;
        std::unique_ptr<IProcedure> procedure = make();
        procedure->setValues(flownAt(Knots));
        procedure->calculateCourseList(start, Altitude, course);
        picture.aircraft(start, course);
        picture.path(procedure->getCourseList());
    }
}

bool plotDirect(const std::string& folder, double metres, const char* file, const char* title) {
    CoursePlot picture(Place, metres * 1.25);
    for (int side = 0; side < Sides; ++side) {
        const double radians = (360.0 / Sides * side + 10.0) / DegreesPerRadian;
        const ChartPosition aim = picture.at(metres * std::sin(radians), metres * std::cos(radians));
        DirectProcedure direct(aim, nullptr);
        direct.setValues(flownAt(Knots));
        direct.setLocationAltitude(Altitude + 200.0);
        direct.calculateCourseList(Place, Altitude, 0.0);
        picture.path(direct.getCourseList());
        picture.mark(aim, "");
    }
    picture.aircraft(Place, 0.0);
    return picture.save(folder + file, title);
}

bool plotHolding(const std::string& folder, const HoldingProcedure::Pattern& pattern, double turned, const char* file,
                 const char* title) {
    CoursePlot picture(Place, 16000.0);
    picture.mark(Place, "FIX");
    fromAllSides(picture, 12500.0, turned, [&] { return std::make_unique<HoldingProcedure>(Place, pattern, nullptr); });
    return picture.save(folder + file, title);
}

/// As a saved plan tells it: there is no chart here.
std::unique_ptr<IProcedure> interception(double courseToElement, double offset, bool to) {
    IniFile plan;
    plan.set("p", "proc[0].locpos.longitude", std::to_string(Place.longitude));
    plan.set("p", "proc[0].locpos.latitude", std::to_string(Place.latitude));
    plan.set("p", "proc[0].courseToElement", std::to_string(courseToElement));
    plan.set("p", "proc[0].interceptOffset", std::to_string(offset));
    plan.set("p", "proc[0].to", to ? "1" : "0");
    return InterceptProcedure::createFromIni(nullptr, &plan, "p", 0, nullptr);
}

struct InterceptionPlot {
    const char* file;
    const char* title;
    double offset;
    bool to;
    double metres;
    double turned;
};

bool plotInterception(const std::string& folder, const InterceptionPlot& plot) {
    constexpr double courseToElement = 250.0; // radial 070
    CoursePlot picture(Place, plot.metres * 1.6);
    const double reach = plot.metres * 2.0, radians = (courseToElement + 180.0) / DegreesPerRadian;
    picture.line(picture.at(-reach * std::sin(radians), -reach * std::cos(radians)),
                 picture.at(reach * std::sin(radians), reach * std::cos(radians)), LineColour, 1.0);
    picture.mark(Place, "VOR");
    picture.mark(picture.at(plot.metres * std::sin(radians), plot.metres * std::cos(radians)), "R070");
    fromAllSides(picture, plot.metres, plot.turned,
                 [&] { return interception(courseToElement, plot.offset, plot.to); });
    return picture.save(folder + plot.file, plot.title);
}

} // namespace

bool plotNavigation(const std::string& folder) {
    bool isGood = plotDirect(folder, 12000.0, "direct.png", "Direct, from heading 000") &&
                  plotDirect(folder, 1900.0, "direct-near.png", "Direct, about two turn radii away");
    const HoldingProcedure::Pattern right{70.0, 2.0, true}, left{70.0, 2.0, false};
    isGood = isGood && plotHolding(folder, right, 0.0, "holding-right.png", "Holding 070, right, flown to the fix") &&
             plotHolding(folder, left, 0.0, "holding-left.png", "Holding 070, left, flown to the fix") &&
             plotHolding(folder, right, 120.0, "holding-away.png", "Holding 070, right, 120 degrees off");
    const InterceptionPlot plots[] = {
        {"intercept-to.png", "Radial 070 inbound, 45 degrees", 45.0, true, 15000.0, 0.0},
        {"intercept-from.png", "Radial 070 outbound, 45 degrees", 45.0, false, 15000.0, 0.0},
        {"intercept-25.png", "Radial 070 inbound, 25 degrees", 25.0, true, 15000.0, 90.0},
        {"intercept-90.png", "Radial 070 inbound, 90 degrees", 90.0, true, 15000.0, 180.0},
        {"intercept-near.png", "Radial 070 inbound, 45 degrees, from 2 km", 45.0, true, 2000.0, 0.0},
        {"intercept-far.png", "Radial 070 inbound, from 50 NM", 45.0, true, 92600.0, 60.0}};
    for (const InterceptionPlot& plot : plots)
        isGood = isGood && plotInterception(folder, plot);
    return isGood;
}

} // namespace skyvane
