#include "procedures/approach/FinalApproachFix.h"

#include "chart/elements/IChartElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChartElementSource.h"

#include <cmath>

namespace skyvane {

std::optional<ChartPosition> FinalApproachFix::place(const ChartPosition& threshold,
                                                     IChartElementSource* charts) const {
    if (type == Position)
        return position;
    if (type == Element) {
        const IChartElement* element = charts ? charts->getChartElement(elementIndex) : nullptr;
        return element ? std::optional<ChartPosition>(element->getPosition()) : std::nullopt;
    }
    const double metres = distanceMiles * MetresPerNauticalMile;
    const double radians = course / DegreesPerRadian;
    return Vector3df642ChartPosition(threshold, {-std::sin(radians) * metres, 0.0, -std::cos(radians) * metres});
}

} // namespace skyvane
