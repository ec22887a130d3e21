#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/glide/GlideMath.h"
#include "displays/glide/TimedSamples.h"

namespace skyvane {

class SensorManager;

/// What a glide computer looks at beside the sensors. Without a procedure the defaults stand for "not known".
struct GlideSources {
    SensorManager* sensors = nullptr;
    double distanceNauticalMiles = -1.0; ///< To the destination.
    bool hasElevation = false;           ///< The destination is an airport whose elevation is known.
    double elevationFeet = 0.0;
    double inverseGlideRatio = -1.0; ///< 40 for 1:40; 0 and below for unknown.
};

/// A number and the trust in it. One that nobody can know now (no procedure, no speed) is not known, but no failure.
struct GlideNumber {
    bool known = false;
    double value = 0.0;
    DialFlag flag = DialFlag::Good;
};

/// The one of two flags that a pilot must hear of: a failure, then a doubt, then the simulation.
DialFlag worseFlag(DialFlag a, DialFlag b);

/// What the table of a glider panel tells.
struct GliderReadings {
    static constexpr int factors = 4;
    /// What each metre flown costs, by the row of the table: 100, 75, 50 and 25 percent of the glide.
    static constexpr double multipliers[factors] = {1.0, 1.0 / 0.75, 2.0, 4.0};
    enum Column { Current, Average, Best, columns };

    GlideNumber distance;             ///< nautical miles
    GlideNumber altitude;             ///< metres
    GlideNumber verticalSpeed;        ///< metres per second
    GlideNumber averageVerticalSpeed; ///< metres per second
    double gradients[columns] = {noGradient, noGradient, noBestGradient};
    DialFlag gradientFlags[columns] = {};
    bool isTableValid = false;      ///< There is an airport to arrive at.
    double above[factors][columns]; ///< metres, or noAltitudeAbove
    DialFlag tableFlags[columns] = {};
};

/// Reads and computes what a glider panel shows. What failed is no part of an average: that begins anew afterwards.
/// Allocates nothing.
class GliderReader {
public:
    explicit GliderReader(unsigned averageMilliseconds);
    GliderReadings read(const GlideSources& sources, unsigned nowMilliseconds);

private:
    void readGradients(GliderReadings& readings, const GlideNumber& groundSpeed, unsigned now);

    TimedSamples verticalSpeeds_;
    TimedSamples groundSpeeds_;
};

struct GlideInfoReadings {
    GlideNumber ratio;                ///< Metres flown for each metre of height, negative in a climb.
    GlideNumber altitude;             ///< metres above the sea at the destination
    GlideNumber averageVerticalSpeed; ///< metres per second, of the last 30 seconds
};

/// Reads and computes what the glide information shows. The average begins anew after a failure, and after two seconds
/// without a look. Allocates nothing.
class GlideInfoReader {
public:
    GlideInfoReader();
    GlideInfoReadings read(const GlideSources& sources, unsigned nowMilliseconds);

private:
    GlideNumber averageVerticalSpeed(SensorManager& sensors, unsigned now);

    TimedSamples verticalSpeeds_;
};

} // namespace skyvane
