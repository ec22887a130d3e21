#include "chart/elements/IChartElement.h"
#include "chart/store/IChartElementSource.h"
#include "chart/store/SubChart.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

using namespace skyvane;

namespace {

class NoChart : public IChartElementSource {
public:
    IChartElement* getChartElement(int) override { return nullptr; }
    IArea* getArea(int) override { return nullptr; }
};

/// A set's folder whose two files are given anew for each input.
struct Installed {
    std::filesystem::path root = std::filesystem::temp_directory_path() / ("skyvane-fuzz-" + std::to_string(getpid()));
    ElementFactories factories = makeElementFactories();
    FactoriesByType byType = sortByType(factories);

    Installed() { std::filesystem::create_directories(root); }
    ~Installed() { std::filesystem::remove_all(root); }
    void write(const char* name, const uint8_t* data, size_t size) const {
        std::ofstream((root / name).string(), std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
};

} // namespace

// The first byte says how many of the others are offsets, the rest are records: elements are whole or absent.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const Installed installed;
    std::cout.setstate(std::ios::badbit); // the log
    if (size == 0)
        return 0;
    const size_t offsets = std::min<size_t>(data[0], size - 1);
    installed.write("ElementOffsets.dat", data + 1, offsets);
    installed.write("Elements.dat", data + 1 + offsets, size - 1 - offsets);
    NoChart chart;
    SubChart set({}, installed.root.string(), 0, installed.byType, chart);
    if (static_cast<size_t>(set.getElementCount()) * 4 > offsets)
        std::abort();
    for (int index = -1; index <= set.getElementCount(); ++index) {
        const std::unique_ptr<IChartElement> element = set.loadChartElement(index);
        if (element && (index < 0 || index == set.getElementCount()))
            std::abort();
        if (element && (element->getType() < 0 || element->getType() >= IChartElement::TypeCount))
            std::abort();
    }
    return 0;
}
