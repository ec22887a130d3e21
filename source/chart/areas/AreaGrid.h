#pragma once

#include "chart/areas/AreaTree.h"

#include <array>

namespace skyvane {

// The leaves as the grid of half degrees that they form: to find those of a view no tree needs to be walked.
constexpr int AreaGridColumns = 720;
constexpr int AreaGridRows = 360;

/// The number of a leaf is a sum of a part that its column decides and one that its row does: at each level the areas
/// of the columns and of the rows before it, and one for the area that it lies in.
struct AreaGridNumbers {
    std::array<int, AreaGridColumns> ofColumn{};
    std::array<int, AreaGridRows> ofRow{};

    constexpr AreaGridNumbers() {
        for (int column = 0; column < AreaGridColumns; ++column)
            ofColumn[static_cast<size_t>(column)] = part(column, AreaGridColumns, true);
        for (int row = 0; row < AreaGridRows; ++row)
            ofRow[static_cast<size_t>(row)] = part(row, AreaGridRows, false);
    }

private:
    static constexpr int part(int cell, int cells, bool isColumn) {
        int number = 0, areas = AreaCount;
        for (const AreaSplit* split = WorldSplits; split->longitudes; ++split) {
            areas = (areas - 1) / (split->longitudes * split->latitudes);
            cells /= isColumn ? split->longitudes : split->latitudes;
            number += cell / cells * areas * (isColumn ? split->latitudes : 1) + (isColumn ? 1 : 0);
            cell %= cells;
        }
        return number;
    }
};
extern const AreaGridNumbers areaGridNumbers;

/// The number of the leaf in a column, 0 to 719 from longitude 0 east, and a row, 0 to 359 from the north pole south.
inline int getLeafIndex(int column, int row) {
    return areaGridNumbers.ofColumn[static_cast<size_t>(column)] + areaGridNumbers.ofRow[static_cast<size_t>(row)];
}

/// The leaves that a rectangle overlaps, as IArea::Overlap has it: not those that it touches only. Allocates nothing.
///
///     AreaGridView(nw, se).forEachLeaf([&](int index) { draw(*table[index]->asLeaf()); });
///
/// Corners as for IChartElementSource::getBestFittingAreaList, also across longitude 0. No leaves when a corner isn't
/// finite.
class AreaGridView {
public:
    AreaGridView(const ChartPosition& nw, const ChartPosition& se);

    /// Calls visit(index) for each leaf, column by column from the west edge, each from north to south.
    template <class Visit>
    void forEachLeaf(Visit&& visit) const {
        for (int i = 0; i < columns_; ++i)
            for (int row = firstRow_; row <= lastRow_; ++row)
                visit(getLeafIndex((firstColumn_ + i) % AreaGridColumns, row));
    }

private:
    int firstColumn_ = 0;
    int columns_ = 0;
    int firstRow_ = 0;
    int lastRow_ = -1;
};

} // namespace skyvane
