#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

class Aircraft;

constexpr double kilometresPerHourPerKnot = 1.8519999984;

/// The speeds that a speed dial marks, knots, or km/h after toMetric().
struct SpeedScale {
    double start = 40.0;
    double end = 200.0;
    double whiteStart = 55.0; ///< Flap range.
    double whiteEnd = 105.0;
    double greenStart = 58.0; ///< Normal range; the caution range follows up to the red line.
    double greenEnd = 140.0;
    double red = 200.0;
    double blue = -1.0;        ///< Best single-engine climb; not drawn unless greater than 0.
    double speedFallOff = 1.0; ///< Exponent of the scale.
    int deltaDesc = 20;        ///< Step of the numbers.

    /// The scale and the marks of an aircraft. A range with an end that the aircraft lacks isn't there.
    static SpeedScale of(const Aircraft& aircraft);
    bool operator==(const SpeedScale& other) const;

    /// All speeds in km/h; start and end become the next tens above.
    SpeedScale toMetric() const;

    /// Needle deflection, degrees clockwise from up: 20 at the start, 340 at the end and growing beyond it.
    double angleOf(double speed) const;
    /// The same, stopped short of a full turn, so that a speed beyond the scale never reads as a low one.
    double shownAngleOf(double speed) const;
};

/// A scale that can be drawn whatever numbers came in: finite, positive exponent and step, at most 400 marks.
SpeedScale makeDrawable(const SpeedScale& scale);

/// A mark of the scale. Directions are (x, y) with y down, of unit length.
struct SpeedTick {
    int speed;
    irr::core::vector2d<double> direction;
    bool major; ///< Divisible by 10: from 0.75 of the radius instead of 0.85, to 0.95.
};

/// Every 5 units from start to end but for the values of the red and blue line.
std::vector<SpeedTick> layoutSpeedTicks(const SpeedScale& scale);

struct SpeedLabel {
    int speed;
    irr::core::rect<int> box; ///< Local to the face.
};

/// Sizes of drawn numbers, in pixels.
class ITextMeasure {
public:
    virtual ~ITextMeasure() = default;
    virtual irr::core::dimension2d<unsigned> measureNumber(int number) = 0;
};

/// The numbers of a face of that radius: centred on 0.75 of it, pulled inwards by half of the number's diagonal; one
/// that would overlap the number before is left out.
std::vector<SpeedLabel> layoutSpeedLabels(const SpeedScale& scale, double radius, ITextMeasure& measure);

/// The unit vector at that many degrees clockwise from up, y down.
irr::core::vector2d<double> dialDirection(double degrees);

} // namespace skyvane
