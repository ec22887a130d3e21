#include "procedures/approach/LandingRunway.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/RunwayEnds.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <limits>

namespace skyvane {

namespace {

using Place = irr::core::vector3d<double>;

constexpr int GoodAccuracy = 3;

const Runway* runwayOf(const AirportElement& airport, int index) {
    return index >= 0 && static_cast<size_t>(index) < airport.runways.size() ? &airport.runways[size_t(index)]
                                                                             : nullptr;
}

/// Runways without any surveyed end lie on the reference point, one over the other.
bool mayLieOnAnother(const Runway& runway) {
    return !runway.ends[0].isThresholdKnown && !runway.ends[1].isThresholdKnown && !runway.ends[0].name.empty();
}

void setThresholds(LandingRunway& landing, const AirportElement& airport, const Runway& runway, bool primary) {
    landing.isThresholdKnown = selectThreshholdPosition(&airport, &runway, primary, landing.threshold);
    selectThreshholdPosition(&airport, &runway, !primary, landing.farThreshold);
    if (!mayLieOnAnother(runway))
        return;
    ChartPosition& first = primary ? landing.threshold : landing.farThreshold;
    ChartPosition& second = primary ? landing.farThreshold : landing.threshold;
    Place firstPlace = ChartPosition2Vector3df64(airport.position, first, 0.0);
    Place secondPlace = ChartPosition2Vector3df64(airport.position, second, 0.0);
    correctThreshholdPosition(&runway, firstPlace, secondPlace);
    first = Vector3df642ChartPosition(airport.position, firstPlace);
    second = Vector3df642ChartPosition(airport.position, secondPlace);
}

void setElevation(LandingRunway& landing, const AirportElement& airport, const Runway& runway, bool primary) {
    int feet = 0;
    const bool isOwn = selectThreshholdElevation(&airport, &runway, primary, feet);
    landing.isElevationKnown = isOwn || feet != AirportElement::UnknownElevation;
    landing.thresholdElevation = feet * MetresPerFoot;
}

const char* qualityOf(int accuracy) {
    switch (accuracy) {
    case 1:
        return "medium";
    case 2:
        return "high and low";
    default:
        return "unknown";
    }
}

} // namespace

std::optional<LandingRunway> describeLandingRunway(const AirportElement& airport, int runwayIndex, bool primary) {
    const Runway* runway = runwayOf(airport, runwayIndex);
    if (!runway)
        return std::nullopt;
    LandingRunway landing;
    landing.name = runway->ends[primary ? 0 : 1].name;
    landing.label = runway->getEndLabel(primary ? 0 : 1);
    landing.accuracy = std::min(airport.getAccuracy(), runway->getAccuracy());
    const auto lengthFeet = static_cast<int32_t>(runway->lengthFeet); // a negative one is unknown, too
    landing.isLengthKnown = lengthFeet > 0;
    if (landing.isLengthKnown)
        landing.length = lengthFeet * MetresPerFoot;
    setThresholds(landing, airport, *runway, primary);
    setElevation(landing, airport, *runway, primary);
    return landing;
}

std::optional<AppRunway> landingEnd(const AirportElement& airport, int airportIndex, int runwayIndex, bool primary) {
    const Runway* runway = runwayOf(airport, runwayIndex);
    if (!runway)
        return std::nullopt;
    AppRunway end{airportIndex, runwayIndex, 0.0, primary};
    selectRunwayDirection(runway, primary, end.course);
    return end;
}

std::optional<AppRunway> findLandingEnd(const AirportElement& airport, int airportIndex, const std::string& name,
                                        const ChartPosition& threshold) {
    int nearest = -1;
    bool isNearestPrimary = true;
    double least = std::numeric_limits<double>::max();
    for (int index = 0; index < static_cast<int>(airport.runways.size()); ++index) {
        const Runway& runway = airport.runways[size_t(index)];
        for (const bool primary : {true, false}) {
            if (!name.empty() && runway.ends[primary ? 0 : 1].name == name)
                return landingEnd(airport, airportIndex, index, primary);
            ChartPosition position;
            selectThreshholdPosition(&airport, &runway, primary, position);
            const double metres = calcDistance2(position, threshold);
            if (nearest >= 0 && !(metres < least))
                continue;
            nearest = index;
            isNearestPrimary = primary;
            least = metres;
        }
    }
    return landingEnd(airport, airportIndex, nearest, isNearestPrimary);
}

std::string thresholdWarning(const LandingRunway& runway) {
    if (runway.isThresholdKnown)
        return "";
    return std::string("THRESHOLD POSITION UNKNOWN:\nusing extrapolated position") +
           (runway.isLengthKnown ? "" : "\nRUNWAY LENGTH UNKNOWN");
}

std::string accuracyWarning(const LandingRunway& runway) {
    if (runway.accuracy >= GoodAccuracy)
        return "";
    return std::string("WARNING: Approach procedure\nwith ") + qualityOf(runway.accuracy) + " accuracy";
}

} // namespace skyvane
