#include "Bench.h"
#include "chart/areas/AreaTree.h"

namespace skyvane {

namespace {

/// The tree's table and nodes, against one array of as many bytes that is filled with a number. Both are allocated anew
/// each time and freed outside the measurement.
double treeBuild(bool smoke) {
    const size_t words = (AreaCount * sizeof(IArea*) + (AreaCount - AreaLeafCount) * sizeof(AreaNode) +
                          AreaLeafCount * sizeof(AreaLeaf)) /
                         sizeof(uint64_t);
    const auto build = [] {
        std::vector<IArea*> table;
        std::unique_ptr<AreaArena> areas;
        return secondsOf([&] {
            table.resize(AreaCount);
            areas = createWorldWideAreaTree(false, table.data());
        });
    };
    const auto fill = [words] {
        std::vector<uint64_t> array;
        return secondsOf([&] { array.assign(words, 0x0123456789abcdef); });
    };
    return ratioOfMedians(smoke ? 1 : 15, build, fill);
}

} // namespace

std::vector<Bench> areaBenches() {
    return {{"areas.build", Bench::Bound::AtMost, 4, treeBuild}};
}

} // namespace skyvane
