#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/gauges/ShortText.h"
#include "displays/gauges/SpeedScale.h"

#include <optional>

namespace skyvane {

/// What the bars of a primary flight display show in one frame, as plain values with the trust in each.
///
/// A value counts only when its flag shows it (isValueShown). Units are those of the records: knots, metres, degrees.
struct PfdReadings {
    template <class Value>
    struct Trusted {
        Value value{};
        DialFlag flag = DialFlag::Failed;
    };

    bool metric = false;

    Trusted<double> airSpeedKnots; ///< Indicated.
    bool hasAirSpeed = false;      ///< A sensor tells it, whether it can be believed or not.
    Trusted<double> groundSpeedKnots;
    SpeedScale speeds; ///< The marks of the aircraft flown, knots.

    Trusted<double> altitudeMetres;       ///< As the altimeter shows it.
    Trusted<double> seaLevelHeightMetres; ///< Of the aircraft, whatever the altimeter is set to.
    double groundMetres = 0.0;            ///< Of the terrain at the aircraft; infinite where nobody knows it.
    double seaLevelMillibars = 1013.25;
    bool isSatelliteAltitude = false; ///< The QNH doesn't enter it.

    Trusted<double> verticalSpeedMetres; ///< Per second, filtered.

    Trusted<double> headingDegrees;        ///< True, as the scene is drawn.
    std::optional<double> magneticDegrees; ///< Where a sensor has it.
    std::optional<double> trackDegrees;    ///< True, over ground.
    std::optional<double> bearingDegrees;  ///< True, to the next point of the plan.

    Trusted<double> bankDegrees; ///< Right positive; the attitude's flag.
    Trusted<double> sideways;    ///< -1 to 1, where the ball lies, right positive.

    struct AngleOfAttack {
        double angle = 0.0;
        double maximum = 1.0;
        bool inParts = true; ///< Of a scale; otherwise degrees.
    };
    Trusted<AngleOfAttack> angleOfAttack;
    bool hasAngleOfAttack = false; ///< A sensor tells it, whether it can be believed or not.

    /// The next point of the plan; a length below 0 when there is none.
    struct NextFix {
        double nauticalMiles = -1.0;
        int seconds = -1;               ///< Negative when it can't be told.
        ShortText name;                 ///< Empty for a place without one.
        DialFlag flag = DialFlag::Good; ///< Of the position that it was measured from.
    };
    NextFix nextFix;
};

} // namespace skyvane
