#include "chart/areas/AreaGrid.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/store/ChartFixture.h"
#include "chart/store/ElementId.h"
#include "core/IProgressSink.h"
#include "support/AllocationCounter.h"

#include <csignal>
#include <map>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace skyvane {
namespace {

class ChartStoreTest : public ChartTest {
protected:
    void write(const std::string& name, const std::string& bytes) {
        std::ofstream(folder_.path(name), std::ios::binary) << bytes;
    }
    static std::string bytesOf(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    void installThree() {
        Elements elements;
        elements.push_back(airport("EDDA", 8.1, 50.1));
        elements.push_back(airport("EDDB", 8.2, 50.1));
        elements.push_back(mark("Tower", 8.3, 50.1));
        install("V", "a", elements);
    }
};

TEST_F(ChartStoreTest, worksWithoutCharts) {
    const auto store = open();
    EXPECT_EQ(store->getCurrentVendorName(), "");
    EXPECT_TRUE(store->getVendorNames().empty());
    EXPECT_EQ(store->getStaticElementCount(), 0);
    EXPECT_FALSE(store->getChartElement(0));
    EXPECT_FALSE(store->getChartElement(-1));
    EXPECT_TRUE(find(*store, "").empty());
    EXPECT_FALSE(store->getArea(AreaCount));
    EXPECT_TRUE(store->getArea(LastAreaIndex));
}

TEST_F(ChartStoreTest, readsAnElementOnceAndRejectsIdsBeyondTheSets) {
    installThree();
    const auto store = open();
    const SubChart& set = *store->getSets().front();
    const unsigned long reads = set.getReadCount();
    IChartElement* element = store->getChartElement(2);
    EXPECT_EQ(nameOf(element), "Tower") << "the last one reads up to the end of the file";
    EXPECT_EQ(store->getCacheMissCount(), 1ul);
    const AllocationCounter allocations;
    EXPECT_EQ(store->getChartElement(2), element);
    EXPECT_EQ(allocations.count(), 0u);
    EXPECT_EQ(store->getCacheMissCount(), 1ul);
    EXPECT_EQ(set.getReadCount(), reads + 1);
    for (const int id : {3, ElementIndexMask, makeElementId(1, 0), makeElementId(255, 5), -1, INT_MIN, INT_MAX})
        EXPECT_FALSE(store->getChartElement(id)) << id;
    EXPECT_EQ(set.getReadCount(), reads + 1);
}

TEST_F(ChartStoreTest, correctsTheIdsOfItsSets) {
    installThree();
    install("V", "b", {});
    const auto store = open();
    SubChart& second = *store->getSets()[1];
    int out = 0;
    second.OnIndexCorrect(out, 0x7f800005);
    EXPECT_EQ(out, makeElementId(1, 5));
    second.OnIndexCorrect(out, -3);
    EXPECT_EQ(out, -3);
    EXPECT_EQ(nameOf(second.getChartElementWhileLoading(1)), "EDDB");
}

/// Against lists of all elements: ids, names, leaves and distances, over two sets of one vendor and custom elements.
TEST_F(ChartStoreTest, findsWhatALinearSearchFinds) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    // Not on the edges of leaves, where an element lies in both.
    std::uniform_int_distribution<int> column(-20, 19), row(-10, 9);
    std::uniform_real_distribution<double> within(0.01, 0.49);
    struct Twin {
        int id;
        std::string name;
        ChartPosition position;
    };
    std::vector<Twin> twins;
    const auto make = [&](int id, const std::string& name) {
        twins.push_back(
            {id, name, ChartPosition(column(random) * 0.5 + within(random), row(random) * 0.5 + within(random))});
        return airport(name, twins.back().position.longitude, twins.back().position.latitude);
    };
    for (const int set : {0, 1}) {
        Elements elements;
        for (int i = 0; i < 300; ++i)
            elements.push_back(make(makeElementId(set, i), "A" + std::to_string(random() % 1000)));
        install("V", set ? "b" : "a", elements);
    }
    auto first = open();
    for (int i = 1; i <= 20; ++i)
        EXPECT_EQ(first->addCustomChartElement(make(-i, "C" + std::to_string(i % 7))), -i);

    for (const bool reopened : {false, true}) {
        const auto store = reopened ? open() : std::move(first);
        EXPECT_EQ(store->getStaticElementCount(), 600);
        EXPECT_EQ(store->getCustomElementCount(), 20);
        std::map<std::string, std::vector<int>> byName;
        std::map<int, std::vector<int>> byLeaf;
        for (const Twin& twin : twins) {
            ASSERT_EQ(nameOf(store->getChartElement(twin.id)), twin.name);
            byName[twin.name].push_back(twin.id);
            const int east = static_cast<int>(Angle0to360(twin.position.longitude) * 2);
            byLeaf[getLeafIndex(east, static_cast<int>((90 - twin.position.latitude) * 2))].push_back(twin.id);
        }
        const auto sorted = [](auto ids) {
            std::vector<int> list(ids.begin(), ids.end());
            std::sort(list.begin(), list.end());
            return list;
        };
        for (const auto& [name, ids] : byName)
            EXPECT_EQ(sorted(store->getMatchingChartElements(name, 0)), sorted(ids)) << name;
        size_t entries = 0;
        for (int index = 0; index < AreaCount; ++index)
            if (const AreaLeaf* leaf = store->getArea(index)->asLeaf()) {
                EXPECT_TRUE(leaf->isSane());
                entries += leaf->getElements().size();
                if (byLeaf.count(index)) {
                    EXPECT_EQ(sorted(leaf->getElements()), sorted(byLeaf[index])) << index;
                }
            }
        EXPECT_EQ(entries, twins.size());
        const ChartPosition here(0.1, 0.1);
        std::vector<int> near;
        for (const Twin& twin : twins)
            if (calcDistance2(here, twin.position) <= 90 * 1852.0)
                near.push_back(twin.id);
        EXPECT_EQ(sorted(store->findChartElementsInVicinity(here, 90, true)), sorted(near));
    }
}

TEST_F(ChartStoreTest, showsOneVendorAtATime) {
    installThree();
    Elements other;
    other.push_back(mark("Other", 8.1, 50.1));
    install("A first", "z", other);
    auto store = open("no such vendor");
    EXPECT_EQ(store->getVendorNames(), (std::vector<std::string>{"A first", "V"}));
    EXPECT_EQ(store->getCurrentVendorName(), "A first");
    EXPECT_EQ(nameOf(store->getChartElement(0)), "Other");
    store->addCustomChartElement(mark("Mine", 8.1, 50.1));
    ASSERT_TRUE(store->selectVendor("V"));
    store->buildIndex(nullptr, nullptr);
    EXPECT_EQ(nameOf(store->getChartElement(0)), "EDDA");
    EXPECT_TRUE(find(*store, "OTHER").empty());
    EXPECT_EQ(find(*store, "MINE"), std::list<int>{-1});
    EXPECT_EQ(at(*store, 8.1, 50.1), (std::vector<int>{-1, 0, 1, 2}));
    EXPECT_FALSE(store->selectVendor("none"));
    store->addVendor("Backgrounds only");
    ASSERT_TRUE(store->selectVendor("Backgrounds only"));
    store->buildIndex(nullptr, nullptr);
    EXPECT_FALSE(store->getChartElement(0));
}

TEST_F(ChartStoreTest, leavesOutWhatIsDamaged) {
    installThree();
    const std::string good = bytesOf(setFolder("a") + "/Elements.dat");
    for (const char type : {'\x09', '\xff'}) {
        std::string bytes = good;
        bytes[0] = type;
        write("ChartData/a/Elements.dat", bytes);
        const auto store = open();
        EXPECT_FALSE(store->getChartElement(0));
        EXPECT_EQ(nameOf(store->getChartElement(1)), "EDDB");
    }
    write("ChartData/a/Elements.dat", good.substr(0, good.size() - 1));
    EXPECT_FALSE(open()->getChartElement(2));
    EXPECT_EQ(nameOf(open()->getChartElement(1)), "EDDB");
    write("ChartData/a/Elements.dat", good);
    std::remove((setFolder("a") + "/AreaLeafesAcc.dat").c_str());
    write("ChartData/a/Elements.dat", "");
    EXPECT_EQ(at(*open(), 8.1, 50.1).size(), 3u);
    write("ChartData/broken.sci", "\x01\xff=[[[\n");
    EXPECT_EQ(open()->getVendorNames(), std::vector<std::string>{"V"});
}

TEST_F(ChartStoreTest, namesTheFirstAbsentElementsOnly) {
    Elements elements;
    for (int i = 0; i < 100; ++i)
        elements.push_back(mark("M", 0.1, 0.1));
    install("V", "a", elements);
    write("ChartData/a/Elements.dat", "");
    testing::internal::CaptureStdout();
    {
        auto store = unbuilt();
        store->loadSets("V");
        for (int i = 0; i < 100; ++i)
            EXPECT_FALSE(store->getChartElement(i));
    }
    const std::string log = testing::internal::GetCapturedStdout();
    EXPECT_NE(log.find("Element 19 of chart set"), std::string::npos) << log;
    EXPECT_EQ(log.find("Element 20 of"), std::string::npos) << log;
    EXPECT_NE(log.find("100 times in all"), std::string::npos) << log;
}

TEST_F(ChartStoreTest, tellsOfSetsThatCantBeUsed) {
    installThree();
    install("Other vendor", "b", {});
    auto store = unbuilt();
    store->loadSets("V");
    EXPECT_FALSE(store->isFormatUpdateRequired());
    EXPECT_FALSE(store->findUnusableSet());
    write("ChartData/b/ElementOffsets.dat", std::string("\x03\0\0\0\0\0\0\0", 8));
    store->loadSets("V");
    EXPECT_TRUE(store->isFormatUpdateRequired());
    write("ChartData/b/ElementOffsets.dat", std::string("\x02\0\0\0\x02\0\0\0\x01\0\0\0\0\0\0\0", 16));
    store->loadSets("V");
    ASSERT_TRUE(store->findUnusableSet());
    EXPECT_EQ(store->findUnusableSet()->getLocation(), setFolder("b"));
}

/// Kills or cancels the work at one of its steps.
class EndingSink : public IProgressSink {
public:
    EndingSink(int step, bool kill) : step_(step), kill_(kill) {}
    void setTitle(const std::string&) override {}
    void setProgress(double) override {
        if (++calls_ == step_ && kill_)
            raise(SIGKILL);
    }
    bool isCancelled() override { return calls_ >= step_; }

private:
    int step_;
    bool kill_;
    int calls_ = 0;
};

TEST_F(ChartStoreTest, computesAgainWhatWasInterrupted) {
    Elements elements;
    for (int i = 0; i < 720; ++i)
        elements.push_back(airport("A", i * 0.5 + 0.1, 60.1));
    install("V", "a", elements);
    open();
    const std::string acc = setFolder("a") + "/AreaLeafesAcc.dat";
    const std::string golden = bytesOf(acc);
    EXPECT_EQ(golden.substr(0, 4), std::string("\x02\0\0\0", 4));
    EXPECT_EQ(golden.size(), 4u + 720 * 11);
    for (const bool kill : {true, false})
        for (const int step : {1, 2, 77, 500, 999, 1000}) {
            std::remove(acc.c_str());
            if (const pid_t child = fork()) {
                waitpid(child, nullptr, 0);
            } else {
                EndingSink sink(step, kill);
                auto store = unbuilt();
                store->loadSets("V");
                store->buildIndex(nullptr, &sink);
                _exit(0);
            }
            const auto store = open();
            EXPECT_EQ(bytesOf(acc), golden) << step;
            EXPECT_EQ(store->getArea(getLeafIndex(3, 59))->asLeaf()->getStaticBytes()[0], IChartElement::AIRPORT);
        }
}

TEST_F(ChartStoreTest, keepsLessUnderMemoryPressure) {
    installThree();
    const auto store = open("V", 100000);
    std::vector<size_t> limits;
    for (int i = 0; i < 12; ++i) {
        store->getChartElement(0);
        store->shrinkCache();
        limits.push_back(store->getCacheLimit());
    }
    EXPECT_EQ((std::vector<size_t>{limits[0], limits[1], limits[2]}), (std::vector<size_t>{90000, 81000, 72900}));
    EXPECT_EQ(limits[10], 40000u);
    EXPECT_EQ(limits[11], 40000u);
    EXPECT_EQ(store->getCacheMissCount(), 12ul) << "each time it had to be read again";
    EXPECT_EQ(lowestCacheLimit(80), 32u);
}

} // namespace
} // namespace skyvane
