#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <optional>

namespace skyvane {

class IChartElementSource;

/// Says where final begins, and how high.
struct FinalApproachFix {
    enum FAFType {
        Distance = 0, ///< So far from the threshold, against a course.
        Element = 1,  ///< At a chart element.
        Position = 2
    };

    FAFType type = Distance;
    double altitude = 0.0;      ///< metres above mean sea level
    double distanceMiles = 0.0; ///< nautical
    double course = 0.0;        ///< degrees true, towards the threshold
    int elementIndex = 0;
    ChartPosition position;

    /// Nothing for an element that the charts, which may be null, don't have.
    std::optional<ChartPosition> place(const ChartPosition& threshold, IChartElementSource* charts) const;
};

} // namespace skyvane
