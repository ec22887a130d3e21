#pragma once

namespace skyvane {

/// The earth as all geographic computations share it: data computed with these values has to line up.
constexpr double EarthRadiusMetres = 6371000.785;
constexpr double MetresPerDegree = 111194.940345393;
/// 180 divided by 3.141592654, not by the full-precision pi.
constexpr double DegreesPerRadian = 57.29577950560105;
/// Beyond this latitude the cosine of the latitude is frozen.
constexpr double PolarLatitudeLimit = 89.9;
constexpr double PolarCosine = 0.0017453281610231236;
/// Half the side of the local frame's window unless told otherwise.
constexpr double LocalHalfExtentMetres = 10000.0;

constexpr double MetresPerNauticalMile = 1852.0;
constexpr double MetresPerFoot = 0.3048;

} // namespace skyvane
