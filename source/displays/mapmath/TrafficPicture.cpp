#include "displays/mapmath/TrafficPicture.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

#include <cmath>
#include <cstdlib>

namespace skyvane {
namespace {

/// What no aircraft flies at: such a figure is none.
constexpr int lowestFeet = -2000, highestFeet = 100000;
constexpr int fastestClimb = 20000;
constexpr int noticeableClimb = 500;
constexpr float unknownTrack = -360.0f;

bool isOnEarth(const TrafficElement& target) {
    return std::isfinite(target.longitude) && std::isfinite(target.latitude) && std::fabs(target.latitude) <= 90.0 &&
           target.longitude >= -180.0 && target.longitude <= 360.0;
}

std::optional<double> altitudeOf(const TrafficElement& target, double seaLevelPressure) {
    if (target.altitude < lowestFeet || target.altitude > highestFeet)
        return std::nullopt;
    const double metres = convertPressureAltitude2MSL(target.altitude * MetresPerFoot, seaLevelPressure);
    return std::isfinite(metres) ? std::optional<double>(metres) : std::nullopt;
}

std::string differenceText(std::optional<double> metres, bool metric) {
    if (!metres)
        return "---";
    const int tens = roundHalfAway((metric ? *metres : *metres / MetresPerFoot) / 10.0);
    return (tens > 0 ? "+" : "") + toText(tens);
}

int trendOf(int climbRate) {
    if (climbRate > fastestClimb || climbRate < -fastestClimb)
        return 0;
    return climbRate >= noticeableClimb ? 1 : climbRate <= -noticeableClimb ? -1 : 0;
}

std::string printable(const std::string& name) {
    std::string text;
    for (const char c : name)
        if (c >= ' ' && c <= '~' && text.size() < TrafficElement::MaxNameLength)
            text += c;
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

} // namespace

std::optional<TrafficPicture> describeTraffic(const TrafficElement& target, const TrafficSituation& situation) {
    if (!isOnEarth(target))
        return std::nullopt;
    TrafficPicture picture;
    if (const std::optional<double> altitude = altitudeOf(target, situation.seaLevelPressure))
        if (std::isfinite(situation.ownAltitudeMetres))
            picture.differenceMetres = *altitude - situation.ownAltitudeMetres;
    // Whoever doesn't tell his altitude may be at ours.
    if (situation.filterFeet > 0 && picture.differenceMetres &&
        std::fabs(*picture.differenceMetres / MetresPerFoot) >= situation.filterFeet)
        return std::nullopt;
    picture.differenceText = differenceText(picture.differenceMetres, situation.metric);
    if (std::isfinite(target.track) && target.track > unknownTrack && std::fabs(target.track) <= 720.0f)
        picture.trackDegrees = Angle0to360(static_cast<double>(target.track));
    picture.trend = trendOf(target.climbRate);
    picture.name = printable(target.name);
    return picture;
}

} // namespace skyvane
