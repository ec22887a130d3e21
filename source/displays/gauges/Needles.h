#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

constexpr double metresPerFoot = 0.3048;

/// Rotations of the altimeter's hands in degrees, counter-clockwise positive: -36 for each unit of a hand.
struct AltimeterHands {
    double hundreds;     ///< The long hand: once round for 1000 units.
    double thousands;    ///< The short wide hand: once round for 10000 units.
    double tenThousands; ///< The thin pointer: once round for 100000 units.
};

/// `altitude` in the unit of the dial, feet or metres.
AltimeterHands calcAltimeterHands(double altitude);

/// Needle deflection from the left rest, degrees clockwise, with the sign of the speed; 1500 ft/min give 90, never 180.
double calcVerticalSpeedAngle(double feetPerMinute);

/// Rotation of a needle that points up in its image, counter-clockwise positive.
double calcVerticalSpeedRotation(double feetPerMinute);

double toFeetPerMinute(double metresPerSecond);

/// Counter-clockwise degrees from straight up to the pointer as seen from the centre, y down: left gives 90, down 180,
/// right -90. 0 for a pointer on the centre.
double calcRotationToPointer(irr::core::vector2d<int> centre, irr::core::vector2d<int> pointer);

} // namespace skyvane
