#pragma once

#include "chart/store/ChartStore.h"

#include <filesystem>
#include <string>
#include <vector>

namespace skyvane {

/// A chart set of the whole world in a folder that goes with this object. It is compiled from the open data that
/// SKYVANE_DATA holds; without those, 80,000 airports of about the same density and length of names are made up.
class WorldCharts {
public:
    WorldCharts();
    ~WorldCharts();
    WorldCharts(const WorldCharts&) = delete;
    WorldCharts& operator=(const WorldCharts&) = delete;

    /// False when there is no set to measure with.
    bool isGood() const;
    /// A store of this set alone, not loaded yet.
    std::unique_ptr<ChartStore> makeStore() const;
    /// The set's folder.
    std::string getFolder() const;
    /// Every name under which an element is found, in the order of the elements.
    std::vector<std::string> collectNames() const;

private:
    bool compile() const;
    void makeUp() const;

    std::filesystem::path root_;
    ElementFactories factories_ = makeElementFactories();
};

} // namespace skyvane
