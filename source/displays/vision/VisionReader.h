#pragma once

#include "attitude/math/Matrix3x3.h"
#include "chart/geodesy/ChartPosition.h"
#include "displays/visionmath/SceneTrust.h"

namespace skyvane {

class Context;
struct PfdReadings;

/// What a scene shows in one frame. Metres, degrees.
struct VisionReadings {
    SceneTrust trust;
    bool hasAttitude = false; ///< There is a record whose numbers make a rotation, however it is to be trusted.
    Matrix3x3 attitude;
    ChartPosition position;
    double altitudeMetres = 0.0;
    double headingDegrees = 0.0;
    double groundMetres = 0.0; ///< Of the terrain at the aircraft; infinite where nobody knows it.
};

VisionReadings readVision(Context& context);
/// What the bars show, taken from the same sensors.
void readBars(Context& context, const VisionReadings& vision, PfdReadings& bars);

} // namespace skyvane
