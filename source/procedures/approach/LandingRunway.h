#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <optional>
#include <string>

namespace skyvane {

class AirportElement;

/// Identifies the runway end that an approach leads to.
struct AppRunway {
    int airportIndex = 0; ///< Of the chart.
    int runwayIndex = 0;  ///< Of the airport.
    double course = 0.0;  ///< Degrees true, of landing.
    bool primary = true;  ///< The first end of the runway.
};

/// What an approach knows of the runway that it leads to, taken from the chart once.
///
/// What isn't surveyed is laid out: parallel runways of which only the direction is known stand side by side. Altitudes
/// and lengths in metres.
struct LandingRunway {
    static constexpr double UnknownLengthMetres = 182.88;

    std::string name;  ///< The end's own; may be empty.
    std::string label; ///< The name, or what the direction is called.
    ChartPosition threshold;
    bool isThresholdKnown = false;
    double thresholdElevation = 0.0;
    bool isElevationKnown = false; ///< The end's own or the airport's.
    ChartPosition farThreshold;    ///< The other end's.
    double length = UnknownLengthMetres;
    bool isLengthKnown = false;
    int accuracy = 0; ///< The worse one of the airport's and the runway's: 0 unknown, 1 low, 2 medium, 3 or more good.
};

/// Nothing for a runway that the airport doesn't have.
std::optional<LandingRunway> describeLandingRunway(const AirportElement& airport, int runwayIndex, bool primary);

/// The end of an index and a side, its course by the thresholds or the stored direction. Nothing for a runway that the
/// airport doesn't have.
std::optional<AppRunway> landingEnd(const AirportElement& airport, int airportIndex, int runwayIndex, bool primary);

/// Finds an end again after the chart has changed: the first of that name, else the one whose threshold is nearest.
/// Ends without a name of their own are only found by their place. Nothing for an airport without runways.
std::optional<AppRunway> findLandingEnd(const AirportElement& airport, int airportIndex, const std::string& name,
                                        const ChartPosition& threshold);

/// What the pilot must hear of the runway before he trusts the path; empty when there is nothing to say.
std::string thresholdWarning(const LandingRunway& runway);
std::string accuracyWarning(const LandingRunway& runway);

} // namespace skyvane
