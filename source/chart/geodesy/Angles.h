#pragma once

namespace skyvane {

/// Wraps degrees into 0 up to but not including 360.
double Angle0to360(double degrees);
/// Wraps degrees into -180 up to 180, keeping both ends as they come.
double Angle180(double degrees);
/// Folds degrees over the poles into -90 to 90: 100 gives 80, 350 gives -10.
double Latitudinize(double degrees);

} // namespace skyvane
