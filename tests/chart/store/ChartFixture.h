#pragma once

#include "chart/elements/AirportElement.h"
#include "chart/elements/MarkElement.h"
#include "chart/store/ChartSetWriter.h"
#include "chart/store/ChartStore.h"
#include "chart/store/SetDescription.h"
#include "core/files/Paths.h"
#include "sensors/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace skyvane {

/// Chart data and custom elements in a folder of the test's, and stores that open them.
class ChartTest : public ::testing::Test {
protected:
    using Elements = std::vector<std::unique_ptr<IChartElement>>;

    static std::unique_ptr<IChartElement> mark(const std::string& name, double longitude, double latitude) {
        auto element = std::make_unique<MarkElement>();
        element->name = name;
        element->position = ChartPosition(longitude, latitude);
        return element;
    }
    static std::unique_ptr<IChartElement> airport(const std::string& ident, double longitude, double latitude) {
        auto element = std::make_unique<AirportElement>();
        element->ident = ident;
        element->name = "";
        element->position = ChartPosition(longitude, latitude);
        return element;
    }

    /// A set and its description, `<name>.sci`.
    void install(const std::string& vendor, const std::string& name, const Elements& elements) {
        makePath(setFolder(name));
        ChartSetWriter set(setFolder(name));
        for (const auto& element : elements)
            ASSERT_GE(set.add(*element), 0);
        ASSERT_TRUE(set.finish());
        ASSERT_TRUE((SetDescription{7, vendor, name + " area", name}.save(folder_.path("ChartData/" + name + ".sci"))));
    }
    std::string setFolder(const std::string& name) const { return folder_.path("ChartData/" + name); }
    std::string customPath(int id) const { return folder_.path("custom/e" + std::to_string(id) + ".ini"); }

    std::unique_ptr<ChartStore> unbuilt(size_t limit = 1000) {
        return std::make_unique<ChartStore>(
            factories_, ChartStore::Folders{folder_.path("ChartData/"), folder_.path("custom/")}, limit);
    }
    std::unique_ptr<ChartStore> open(const std::string& vendor = "V", size_t limit = 1000) {
        auto store = unbuilt(limit);
        store->loadSets(vendor);
        store->buildIndex(nullptr, nullptr);
        return store;
    }

    static std::string nameOf(IChartElement* element) { return element ? element->getTrieInsertionName(0) : "-"; }
    /// The ids in the leaf of half a degree around a place.
    static std::vector<int> at(ChartStore& store, double longitude, double latitude) {
        const auto leafs = store.getLeafesFromAreaList(
            store.getBestFittingAreaList({longitude, latitude + 0.01}, {longitude + 0.01, latitude}, 1.0));
        return leafs.empty() ? std::vector<int>() : store.getArea(leafs.front())->asLeaf()->getElements();
    }
    static std::list<int> find(const ChartStore& store, const std::string& name) {
        return store.getMatchingChartElements(name, 100);
    }

    TemporaryFolder folder_;
    ElementFactories factories_ = makeElementFactories();
};

} // namespace skyvane
