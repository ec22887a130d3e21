#include "chart/areas/AreaTree.h"

#include <cstdio>

namespace skyvane {
namespace {

int takeNumber(IArea* area, int& counter, bool verbose, IArea** table) {
    const int number = counter++;
    table[number] = area;
    if (verbose)
        std::printf("%i\n", number);
    return number;
}

} // namespace

std::unique_ptr<AreaArena> createWorldWideAreaTree(bool verbose, IArea** table) {
    auto arena = std::make_unique<AreaArena>();
    // The table points into them: they must not grow.
    arena->nodes.reserve(AreaCount - AreaLeafCount);
    arena->leafs.reserve(AreaLeafCount);
    int counter = 0;
    arena->nodes.emplace_back(ChartPosition(0.0, 90.0), ChartPosition(360.0, -90.0), -1);
    AreaNode& root = arena->nodes.back();
    const int index = takeNumber(&root, counter, verbose, table);
    subdivideArea(root, index, WorldSplits, counter, verbose, table, *arena);
    return arena;
}

void subdivideArea(AreaNode& area, int index, const AreaSplit* splits, int& counter, bool verbose, IArea** table,
                   AreaArena& arena) {
    const AreaSplit split = *splits;
    const bool leafs = splits[1].longitudes == 0;
    const ChartPosition nw = area.getNWEdge(), se = area.getSEEdge();
    const double width = (se.longitude - nw.longitude) / split.longitudes;
    const double height = (nw.latitude - se.latitude) / split.latitudes;
    for (int column = 0; column < split.longitudes; ++column)
        for (int row = 0; row < split.latitudes; ++row) {
            const ChartPosition childNw(nw.longitude + column * width, nw.latitude - row * height);
            const ChartPosition childSe(nw.longitude + (column + 1) * width, nw.latitude - (row + 1) * height);
            if (leafs) {
                arena.leafs.emplace_back(childNw, childSe, index);
                area.addChild(takeNumber(&arena.leafs.back(), counter, verbose, table));
            } else {
                arena.nodes.emplace_back(childNw, childSe, index);
                AreaNode& child = arena.nodes.back();
                const int number = takeNumber(&child, counter, verbose, table);
                area.addChild(number);
                subdivideArea(child, number, splits + 1, counter, verbose, table, arena);
            }
        }
}

IArea* getAreaOfTable(IArea* const* table, int index) {
    return index >= 0 && index <= LastAreaIndex ? table[index] : nullptr;
}

} // namespace skyvane
