#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

class Matrix3x3;

/// The edge of the pitch ladder as part of the dial face's edge. On it 90 degrees of pitch are one edge.
constexpr double ladderFraction = 0.76;

/// Degrees above the horizon, -90 to 90; beyond 90 up to 270 when the up vector points down, as if the nose had been
/// pulled over the top. World frame: x east, y up, z north. `forward` needn't be of unit length.
double CalcIndicatedPitch(irr::core::vector3d<double> forward, const irr::core::vector3d<double>& up);

/// Degrees of right bank, -90 to 270: beyond 90 in inverted flight. 0 while the nose points straight up or down, where
/// a bank isn't defined.
double CalcIndicatedRoll(irr::core::vector3d<double> forward, irr::core::vector3d<double> up);

/// What the layers of an attitude indicator show.
struct AttitudePose {
    double pitchDegrees = 0.0; ///< Nose up positive, folded into -90 to 90.
    double rollDegrees = 0.0;  ///< Right bank positive: the counter-clockwise rotation of all layers that bank.
};

AttitudePose calcAttitudePose(const Matrix3x3& attitude);

/// How far the middle of the ladder stands from the middle of the dial, in pixels, y down, for a ladder of that edge.
irr::core::vector2d<double> calcLadderOffset(const AttitudePose& pose, double ladderEdge);

/// False when a number of the rotation isn't finite: no attitude to show.
bool isFinite(const Matrix3x3& attitude);

} // namespace skyvane
