#pragma once

#include "chart/elements/GroupedObstruction.h"
#include "chart/geodesy/ChartPosition.h"
#include "displays/shapes/Strokes.h"

#include <unordered_map>

namespace skyvane {

/// Gathers the obstructions of a picture into groups, so that a wind park isn't a blot: those within one cell of a grid
/// that lies on the earth, the same for neighbouring pictures of one scale.
class ObstructionGroups {
public:
    struct Group {
        GroupedObstruction members;
        int index = 0;          ///< In the chart, of the first one.
        ChartPosition position; ///< Of that one.
        bool isLit = false;     ///< Any of them.
    };

    /// Begins anew when the picture is another one than before: `origin` is any place of it that others don't have.
    /// Cells are that many degrees wide and high.
    void start(const ChartPosition& origin, double cellLongitude, double cellLatitude);
    void add(const ObstructionElement& element, int index, const ShapePoint& pixel);

    const std::vector<Group>& getGroups() const { return groups_; }
    bool isIntoRTT = false; ///< What the owner has to know of the picture.
    void clear();

private:
    ChartPosition origin_;
    double cellLongitude_ = 1.0;
    double cellLatitude_ = 1.0;
    std::vector<Group> groups_;
    std::unordered_map<uint64_t, size_t> groupOfCell_;
};

} // namespace skyvane
