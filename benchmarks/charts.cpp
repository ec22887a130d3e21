#include "Bench.h"
#include "WorldCharts.h"
#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaGrid.h"
#include "chart/elements/AirportElement.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <malloc.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>
#include <unordered_map>

namespace skyvane {
namespace {

void load(ChartStore& store) {
    store.loadSets("");
    store.buildIndex(nullptr, nullptr);
}

size_t readFiles(const std::string& folder) {
    size_t bytes = 0;
    for (const char* name :
         {ElementOffsetsFileName, ElementsFileName, NamesFileName, AreaLeafesFileName, AreaLeafesAccFileName}) {
        std::ifstream in(folder + "/" + name, std::ios::binary | std::ios::ate);
        std::vector<char> content(static_cast<size_t>(std::max<std::streamoff>(in.tellg(), 0)));
        in.seekg(0);
        in.read(content.data(), static_cast<std::streamsize>(content.size()));
        bytes += content.size();
    }
    return bytes;
}

/// Loading the world's charts, all names in the index and all areas in the tree, against reading the bytes of the files
/// and sorting the names. Files are in the system's memory for both.
double loading(bool smoke) {
    const WorldCharts world;
    if (!world.isGood())
        return std::nan("");
    load(*world.makeStore()); // makes the acceleration data
    const std::vector<std::string> names = world.collectNames();
    const auto loadOnce = [&world] {
        const std::unique_ptr<ChartStore> store = world.makeStore();
        return secondsOf([&store] { load(*store); });
    };
    size_t bytes = 0;
    const auto readAndSort = [&] {
        std::vector<std::string> sorted = names;
        return secondsOf([&] {
            bytes += readFiles(world.getFolder());
            std::sort(sorted.begin(), sorted.end());
        });
    };
    const double ratio = ratioOfMedians(smoke ? 1 : 9, loadOnce, readAndSort);
    return bytes > 0 ? ratio : std::nan("");
}

/// The elements of a view, frame after frame, from the cache, against a look-up in a plain hash table.
double cachedElements(bool smoke) {
    constexpr int Shown = 3000;
    const WorldCharts world;
    if (!world.isGood())
        return std::nan("");
    const std::unique_ptr<ChartStore> store = world.makeStore();
    load(*store);
    std::unordered_map<int, IChartElement*> table;
    std::vector<int> ids;
    for (int i = 0; i < Shown; ++i)
        ids.push_back(i * 25);
    for (const int id : ids)
        table[id] = store->getChartElement(id);
    long found = 0;
    const auto frames = [&](const auto& lookUp) {
        for (int frame = 0; frame < (smoke ? 1 : 100); ++frame)
            for (const int id : ids)
                found += lookUp(id) != nullptr;
    };
    const auto fromCache = [&] { frames([&store](int id) { return store->getChartElement(id); }); };
    const auto fromTable = [&] {
        frames([&table](int id) {
            const auto it = table.find(id);
            return it == table.end() ? nullptr : it->second;
        });
    };
    const unsigned long misses = store->getCacheMissCount();
    const double ratio = ratioOfMedians(
        smoke ? 1 : 15, [&] { return secondsOf(fromCache); }, [&] { return secondsOf(fromTable); });
    return store->getCacheMissCount() == misses && found > 0 ? ratio : std::nan("");
}

/// A map of a continent that shows the airports with a tower: how often the disk was asked for elements that it doesn't
/// show.
double passReads(bool) {
    constexpr uint8_t TypeBits = 0x3f, Towered = 1 << 4;
    const WorldCharts world;
    if (!world.isGood())
        return std::nan("");
    const std::unique_ptr<ChartStore> store = world.makeStore();
    load(*store); // makes the acceleration data, from the elements
    load(*store);
    SubChart& set = *store->getSets().front();
    size_t seen = 0;
    std::set<int> shown;
    AreaGridView({340.0, 70.0}, {40.0, 30.0}).forEachLeaf([&](int index) {
        const AreaLeaf& leaf = *store->getArea(index)->asLeaf();
        for (size_t i = 0; i < leaf.getElements().size(); ++i) {
            const uint8_t* bytes = &leaf.getStaticBytes()[AreaLeaf::BytesPerElement * i];
            ++seen;
            if ((bytes[0] & TypeBits) != IChartElement::AIRPORT || !(bytes[1] & Towered))
                continue;
            const auto* airport = static_cast<AirportElement*>(store->getChartElement(leaf.getElements()[i]));
            if (airport && airport->isTowered)
                shown.insert(leaf.getElements()[i]);
        }
    });
    if (shown.empty() || seen < 10 * shown.size())
        return std::nan("");
    return static_cast<double>(set.getReadCount()) - static_cast<double>(shown.size());
}

double residentMegabytes() {
    std::ifstream in("/proc/self/statm");
    double total = 0, resident = 0;
    in >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// What the areas and the names of the world take in a process of its own.
double memoryMegabytes(bool) {
    const WorldCharts world;
    int ends[2];
    if (!world.isGood() || pipe(ends) != 0)
        return std::nan("");
    load(*world.makeStore());
    malloc_trim(0); // nothing that was freed before may serve
    const pid_t child = fork();
    if (child == 0) {
        const double before = residentMegabytes();
        const std::unique_ptr<ChartStore> store = world.makeStore();
        load(*store);
        const double taken = residentMegabytes() - before;
        _exit(write(ends[1], &taken, sizeof taken) == sizeof taken ? 0 : 1);
    }
    close(ends[1]);
    double taken = std::nan("");
    if (read(ends[0], &taken, sizeof taken) != sizeof taken)
        taken = std::nan("");
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return taken;
}

} // namespace

std::vector<Bench> chartBenches() {
    return {{"charts.load", Bench::Bound::AtMost, 2, loading},
            {"elements.cached", Bench::Bound::AtMost, 3, cachedElements},
            {"map.pass-reads", Bench::Bound::AtMost, 0, passReads},
            {"charts.memory-mb", Bench::Bound::AtMost, 250, memoryMegabytes}};
}

} // namespace skyvane
