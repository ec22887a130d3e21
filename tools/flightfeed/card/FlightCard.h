#pragma once

#include "flightfeed/flight/LocalEarth.h"

#include <string>
#include <vector>

namespace skyvane {

class PlanRoute;

/// One line of a card that the aircraft flies or that changes what is asked of it.
struct CardStep {
    enum class Kind { Stand, TakeOff, Climb, Turn, Level, Slip, Direct, Follow, Plan, Land, Speed, Wind };

    Kind kind = Kind::Level;
    int line = 0;
    double seconds = 0.0;              ///< Stand, Level, Slip
    double altitudeMetres = 0.0;       ///< Climb (and descend), Follow
    bool keepAltitude = false;         ///< Follow: at the altitude that is held
    double climbMetresPerSecond = 0.0; ///< Climb (and descend), positive
    bool turnRight = false;            ///< Turn
    double bankDegrees = 0.0;          ///< Turn: 0 for a standard-rate turn
    bool turnByAngle = false;          ///< Turn: by `angleDegrees`, otherwise to the heading `angleDegrees`
    double angleDegrees = 0.0;         ///< Turn; Slip: where the ball stands, right positive; Wind: where it comes from
    double speedKnots = 0.0;           ///< Speed, Wind
    GroundPoint point;                 ///< Direct, Follow
};

/// The runway to which landings and landing beams refer.
struct CardRunway {
    GroundPoint threshold;
    double elevationMetres = 0.0;
    double courseDegrees = 0.0;
    double lengthMetres = 1000.0;
    double riseMetres = 0.0; ///< the far end over the threshold
    double glideDegrees = 3.0;
};

/// Another aircraft: straight or in circles, level or climbing.
struct CardTraffic {
    GroundPoint point;
    double altitudeMetres = 0.0;
    double headingDegrees = 0.0;
    double speedKnots = 0.0;
    double turnDegreesPerSecond = 0.0; ///< right positive
    double climbMetresPerSecond = 0.0;
    std::string name; ///< its call sign, up to eight letters
};

/// A flight as it is written down; CardParser reads it, ScriptedFlight flies it.
struct FlightCard {
    GroundPoint startPoint;
    double startAltitudeMetres = 0.0;
    double startHeadingDegrees = 0.0;
    bool startInAir = false;
    double startSpeedKnots = 100.0; ///< in the air
    double utcSeconds = 1780308000.0;
    bool hasRunway = false;
    CardRunway runway;
    std::vector<CardTraffic> traffic;
    std::vector<CardStep> steps;
    PlanRoute* route = nullptr; ///< What Plan steps fly; it outlives the flight.
};

} // namespace skyvane
