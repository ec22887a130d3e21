#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <limits>

namespace skyvane {

/// How a procedure is to be flown, and which deviations the pilot wants to hear of.
struct ProcedureValues {
    /// In place of a target altitude: none is wanted, the path keeps that of its start. "auto" in documents.
    static constexpr double NoAltitude = std::numeric_limits<double>::max();
    // Beyond these no aircraft flies.
    static constexpr double LeastTurnRate = 0.1, MostTurnRate = 90.0;
    static constexpr double MostGroundSpeed = 5000.0;
    static constexpr double HighestAltitude = 100000.0;
    static constexpr double MostTolerance = 100000.0;

    double targetTurnRate = 3.0;        ///< degrees per second
    double targetGroundSpeed = 115.0;   ///< knots
    double targetAltitude = NoAltitude; ///< metres
    double positionTolerance = 15.24;   ///< metres
    double altitudeTolerance = 15.24;   ///< metres
    double speedTolerance = 10.0;       ///< knots
    bool checkAltitude = false;
    bool checkCourse = false;
    bool checkGroundSpeed = false;

    /// Brought into the limits; what is no number takes its default.
    ProcedureValues checked() const;
    bool hasTargetAltitude() const { return targetAltitude != NoAltitude; }
};

/// Where a procedure leads.
struct ProcedureLocation {
    enum Type { None = 0, PlainPosition = 1, ChartElement = 2 };

    Type type = None;
    int chartIndex = 0; ///< Of the element, when there is one.
    int elementType = -1;
    ChartPosition position;
};

} // namespace skyvane
