#pragma once

namespace skyvane {

/// The load in multiples of standard gravity, of the upward part of the apparent gravity in m/s^2: level flight
/// (-9.81) gives 1.
double calcLoad(double upMetresPerSecondSquared);

/// Rotation of the needle of a G-meter, counter-clockwise positive: 90 (left) at 0 g, 27 degrees for each g up to 5,
/// then ever slower towards the right.
double calcLoadRotation(double load);

} // namespace skyvane
