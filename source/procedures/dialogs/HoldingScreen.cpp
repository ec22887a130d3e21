#include "procedures/dialogs/HoldingScreen.h"

#include "chart/geodesy/Angles.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/windows/WindowTools.h"
#include "procedures/dialogs/ProcedureDocuments.h"
#include "procedures/framework/FlightReadings.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double LeastLegMiles = 0.1, MostLegMiles = 50.0;
constexpr double LargestCourse = 360.0, LargestLatitude = 90.0, LargestLongitude = 180.0;
constexpr double LowestFeet = -2000.0, HighestFeet = 60000.0;
constexpr int DegreeDecimals = 5;
constexpr const char* PlaceFields[] = {"tlatitude", "elatitude", "tlongitude", "elongitude"};

bool isWithin(const std::optional<double>& value, double least, double most) {
    return value && *value >= least && *value <= most;
}

} // namespace

HoldingScreen::HoldingScreen(Context& context, HoldingProcedureFactory& factory, const std::string& place)
    : CourseScreen(context, {holdingLandscapeLayout, holdingPortraitLayout, "Holdings.hti"},
                   factory.getGeneralValues()),
      factory_(factory) {
    showText(element("ttitle"), (L"Holding at: " + decodeUtf8(place)).c_str());
    fillIn();
    refresh();
}

void HoldingScreen::fillIn() {
    const HoldingProcedure::Pattern& pattern = factory_.getPattern();
    element("ecourse")->setText(decodeUtf8(toText(roundHalfAway(Angle0to360(pattern.course)) % 360)).c_str());
    element("elength")->setText(decodeUtf8(toFixedText(pattern.dmedistance, 1)).c_str());
    gui().get<irr::gui::IGUICheckBox>("cright")->setChecked(pattern.rightturns);
    const FlightReadings readings = readFlight(*context_.getSensorManager());
    double longitude = 0.0, latitude = 0.0;
    int altitude = 0;
    factory_.fillAltAndPos(longitude, latitude, altitude);
    if (readings.altitude)
        element("ealtitude")->setText(decodeUtf8(toText(roundHalfAway(altitude / 100.0) * 100)).c_str());
    for (const char* id : PlaceFields)
        element(id)->setVisible(!factory_.isAtElement());
    if (!readings.position)
        return;
    element("elatitude")->setText(decodeUtf8(toFixedText(latitude, DegreeDecimals)).c_str());
    element("elongitude")->setText(decodeUtf8(toFixedText(Angle180(longitude), DegreeDecimals)).c_str());
}

std::wstring HoldingScreen::take() {
    const std::optional<double> course = numberIn("ecourse"), leg = numberIn("elength");
    if (!isWithin(course, -LargestCourse, LargestCourse))
        return L"The holding course must be a number of degrees.";
    if (!isWithin(leg, LeastLegMiles, MostLegMiles))
        return L"The leg length must be from 0.1 to 50 NM.";
    factory_.getPattern() = {Angle0to360(*course), *leg, isChecked("cright")};
    factory_.getGeneralValues().targetAltitude.reset();
    if (isChecked("caltitude")) {
        const std::optional<double> feet = numberIn("ealtitude");
        if (!isWithin(feet, LowestFeet, HighestFeet))
            return L"The altitude must be a number of feet.";
        factory_.getGeneralValues().targetAltitude = roundHalfAway(*feet);
    }
    return takePlace();
}

std::wstring HoldingScreen::takePlace() {
    if (factory_.isAtElement())
        return {};
    const std::optional<double> latitude = numberIn("elatitude"), longitude = numberIn("elongitude");
    if (!isWithin(latitude, -LargestLatitude, LargestLatitude) ||
        !isWithin(longitude, -LargestLongitude, LargestLongitude))
        return L"Please enter where the holding shall be: latitude and longitude in degrees, north and east positive.";
    factory_.getPosition() = {*longitude, *latitude};
    return {};
}

void HoldingScreen::refresh() {
    showText(element("cright"), isChecked("cright") ? L"Right Turns" : L"Left Turns");
    if (!take().empty())
        return preview().show({});
    CoursePreview::Scene scene;
    scene.course = factory_.makePattern(0.0);
    scene.fixes = {factory_.getPosition()};
    preview().show(std::move(scene));
}

} // namespace skyvane
