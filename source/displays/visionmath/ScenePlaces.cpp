#include "displays/visionmath/ScenePlaces.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double eyeMetres = 2.0;
constexpr double deepestMetres = 20.0;

} // namespace

double calcShownHeight(double altitudeMetres, double groundMetres) {
    const double standing = groundMetres + eyeMetres;
    const bool isSunk = standing > altitudeMetres && standing - altitudeMetres < deepestMetres;
    return isSunk ? standing : altitudeMetres;
}

ElementBox calcElementBox(const ChartPosition& centre, double sightMetres) {
    const double high = sightMetres / MetresPerDegree;
    const double wide = std::min(high / longitudeScale(centre.latitude), 179.9);
    const double west = Angle0to360(centre.longitude - wide);
    return {{west, std::min(centre.latitude + high, 90.0)},
            {west + 2.0 * wide, std::max(centre.latitude - high, -90.0)}};
}

} // namespace skyvane
