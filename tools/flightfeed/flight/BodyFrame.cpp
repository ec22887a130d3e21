#include "flightfeed/flight/BodyFrame.h"

#include <cmath>

namespace skyvane {

double dot(const NedVector& a, const NedVector& b) {
    return a.north * b.north + a.east * b.east + a.down * b.down;
}

BodyFrame bodyFrame(double roll, double pitch, double heading) {
    const double sr = std::sin(roll), cr = std::cos(roll);
    const double sp = std::sin(pitch), cp = std::cos(pitch);
    const double sh = std::sin(heading), ch = std::cos(heading);
    return {{cp * ch, cp * sh, -sp},
            {sr * sp * ch - cr * sh, sr * sp * sh + cr * ch, sr * cp},
            {cr * sp * ch + sr * sh, cr * sp * sh - sr * ch, cr * cp}};
}

BodyRates bodyRates(double roll, double pitch, double rollRate, double pitchRate, double headingRate) {
    const double sr = std::sin(roll), cr = std::cos(roll);
    const double cp = std::cos(pitch);
    return {rollRate - headingRate * std::sin(pitch), pitchRate * cr + headingRate * cp * sr,
            headingRate * cp * cr - pitchRate * sr};
}

} // namespace skyvane
