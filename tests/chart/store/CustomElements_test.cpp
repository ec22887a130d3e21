#include "chart/store/ChartFixture.h"
#include "core/ini/IniFile.h"

#include <climits>

namespace skyvane {
namespace {

class CustomElements : public ChartTest {
protected:
    static IniFile document(const std::string& name, double longitude = 8.1) {
        IniFile ini;
        mark(name, longitude, 50.1)->writeToIni(&ini);
        return ini;
    }
    static int add(ChartStore& store, const std::string& name, double longitude = 8.1) {
        IniFile ini = document(name, longitude);
        return store.addCustomChartElementFromIni(ini);
    }
    std::string nameInFile(int id) const { return IniFile(customPath(id)).get("", "Name"); }
};

TEST_F(CustomElements, areSavedFoundAndLoadedAgain) {
    auto store = open();
    EXPECT_EQ(add(*store, "One"), -1);
    EXPECT_EQ(store->addCustomChartElement(mark("Two", 8.1, 50.1)), -2);
    EXPECT_EQ(store->addCustomChartElement(nullptr), 0);
    for (const bool reopened : {false, true}) {
        store = reopened ? open() : std::move(store);
        EXPECT_EQ(store->getCustomElementCount(), 2);
        EXPECT_EQ(nameOf(store->getChartElement(-2)), "Two");
        EXPECT_EQ(find(*store, "TWO"), std::list<int>{-2});
        EXPECT_EQ(at(*store, 8.1, 50.1), (std::vector<int>{-1, -2}));
        EXPECT_FALSE(store->getChartElement(-3));
    }
}

TEST_F(CustomElements, areEditedInPlace) {
    const auto store = open();
    add(*store, "Old");
    IniFile edited = document("New", 9.1);
    EXPECT_TRUE(store->setCustomChartElementFromIni(edited, -1));
    EXPECT_EQ(store->getCustomElementCount(), 1);
    EXPECT_EQ(nameOf(store->getChartElement(-1)), "New");
    EXPECT_TRUE(find(*store, "OLD").empty());
    EXPECT_EQ(find(*store, "NEW"), std::list<int>{-1});
    EXPECT_TRUE(at(*store, 8.1, 50.1).empty());
    EXPECT_EQ(at(*store, 9.1, 50.1), std::vector<int>{-1});
    EXPECT_EQ(nameInFile(-1), "New");
    for (const int id : {0, 1, -3, INT_MIN})
        EXPECT_FALSE(store->setCustomChartElementFromIni(edited, id)) << id;
    edited.set("", "Type", "HELICAR");
    EXPECT_FALSE(store->setCustomChartElementFromIni(edited, -1));
    EXPECT_EQ(store->addCustomChartElementFromIni(edited), 0);
    EXPECT_EQ(nameInFile(-1), "New");
}

TEST_F(CustomElements, stayGaplessWhenOneIsDeleted) {
    const auto store = open();
    for (const char* name : {"One", "Two", "Three"})
        add(*store, name);
    for (const int id : {0, -4, INT_MIN, 7})
        EXPECT_FALSE(store->deleteCustomChartElement(id)) << id;
    EXPECT_TRUE(store->deleteCustomChartElement(-1));
    EXPECT_EQ(nameInFile(-1), "Three");
    EXPECT_FALSE(fileExist(customPath(-3)));
    EXPECT_EQ(store->getCustomElementCount(), 2);
    EXPECT_TRUE(find(*store, "ONE").empty());
    EXPECT_EQ(find(*store, "THREE"), std::list<int>{-1}) << "at once under its new id";
    EXPECT_EQ(nameOf(store->getChartElement(-1)), "Three");
    const std::vector<int> leaf = at(*store, 8.1, 50.1);
    EXPECT_EQ(std::list<int>(leaf.begin(), leaf.end()), (std::list<int>{-2, -1}));
    EXPECT_TRUE(store->deleteCustomChartElement(-2));
    EXPECT_EQ(nameInFile(-1), "Three");
    EXPECT_FALSE(fileExist(customPath(-2)));
    EXPECT_EQ(add(*store, "Four"), -2);
    EXPECT_EQ(at(*open(), 8.1, 50.1), (std::vector<int>{-1, -2}));
}

TEST_F(CustomElements, endAtAHoleOrAnUnknownKindAndLoseNoFile) {
    {
        const auto store = open();
        for (const char* name : {"One", "Two", "Three"})
            add(*store, name);
    }
    IniFile(document("Future")).Save(customPath(-2));
    IniFile future(customPath(-2));
    future.set("", "Type", "HELICAR");
    future.Save(customPath(-2));
    const auto store = open();
    EXPECT_EQ(store->getCustomElementCount(), 1);
    EXPECT_EQ(add(*store, "New two"), -2);
    EXPECT_EQ(nameInFile(-2), "New two");
    EXPECT_EQ(add(*store, "New three"), -3);
    const auto kept = [this](int id) { return IniFile(customPath(id) + ".kept").get("", "Name"); };
    EXPECT_EQ(kept(-2), "Future");
    EXPECT_EQ(kept(-3), "Three");
    std::filesystem::remove(customPath(-1));
    EXPECT_EQ(open()->getCustomElementCount(), 0);
}

TEST_F(CustomElements, changeNothingThatCantBeSaved) {
    const auto store = open();
    folder_.write("custom", "a file where the folder should be");
    EXPECT_EQ(add(*store, "One"), 0);
    EXPECT_EQ(store->addCustomChartElement(mark("One", 8.1, 50.1)), 0);
    EXPECT_EQ(store->getCustomElementCount(), 0);
    EXPECT_TRUE(find(*store, "ONE").empty());
}

} // namespace
} // namespace skyvane
