#include "chart/store/ElementId.h"
#include "chart/store/LRUCache.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <list>
#include <memory>
#include <random>

namespace skyvane {
namespace {

/// A value that counts those alive.
struct Counted {
    explicit Counted(int v) : value(v) { ++alive; }
    ~Counted() { --alive; }
    int value;
    static int alive;
};
int Counted::alive = 0;

using Cache = LRUCache<int, std::unique_ptr<Counted>>;

void put(Cache& cache, int key) {
    cache.insert(key, std::make_unique<Counted>(key));
}

TEST(LRUCache, letsGoWhatWasUsedLongestAgo) {
    Cache cache(3);
    for (const int key : {1, 2, 3})
        put(cache, key);
    EXPECT_EQ((*cache.find(1))->value, 1);
    put(cache, 4);
    EXPECT_FALSE(cache.find(2));
    EXPECT_TRUE(cache.find(1));
    EXPECT_TRUE(cache.find(3));
    EXPECT_TRUE(cache.find(4));
    EXPECT_EQ(Counted::alive, 3);
    EXPECT_EQ(cache.getMissCount(), 1ul);
}

TEST(LRUCache, replacesTheValueOfAKey) {
    Cache cache(2);
    put(cache, 1);
    put(cache, 2);
    cache.insert(1, std::make_unique<Counted>(10));
    put(cache, 3);
    EXPECT_EQ((*cache.find(1))->value, 10) << "it had become the newest";
    EXPECT_FALSE(cache.find(2));
    EXPECT_EQ(cache.size(), 2u);
}

TEST(LRUCache, shrinksWithItsLimit) {
    {
        Cache cache(100);
        for (int key = 0; key < 100; ++key)
            put(cache, key);
        cache.setLimit(40);
        EXPECT_EQ(cache.size(), 40u);
        EXPECT_EQ(Counted::alive, 40);
        EXPECT_FALSE(cache.find(59));
        EXPECT_TRUE(cache.find(60));
        cache.clear();
        EXPECT_EQ(Counted::alive, 0);
        EXPECT_EQ(cache.getLimit(), 40u);
        cache.setLimit(0);
        EXPECT_FALSE(cache.insert(1, std::make_unique<Counted>(1))) << "nothing may stay";
        EXPECT_EQ(cache.size(), 0u);
        cache.setLimit(5);
        put(cache, 1);
        cache.erase(1);
        cache.erase(2);
        put(cache, 3);
        EXPECT_EQ(Counted::alive, 1);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(LRUCache, agreesWithAPlainList) {
    const unsigned seed = 42;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> key(0, 60), action(0, 99);
    Cache cache(20);
    std::list<int> twin; // oldest use first
    unsigned long misses = 0;
    for (int step = 0; step < 20000; ++step) {
        const int k = key(random), what = action(random);
        const auto at = std::find(twin.begin(), twin.end(), k);
        if (what < 50) {
            ASSERT_EQ(cache.find(k) != nullptr, at != twin.end()) << "seed " << seed << " step " << step;
            if (at != twin.end())
                twin.splice(twin.end(), twin, at);
            else
                ++misses;
        } else if (what < 98) {
            put(cache, k);
            if (at != twin.end())
                twin.erase(at);
            twin.push_back(k);
        } else {
            cache.setLimit(static_cast<size_t>(k % 30 + 1));
        }
        while (twin.size() > cache.getLimit())
            twin.pop_front();
        ASSERT_EQ(cache.size(), twin.size()) << "seed " << seed << " step " << step;
    }
    EXPECT_EQ(cache.getMissCount(), misses);
}

TEST(ElementId, holdsSetAndIndex) {
    EXPECT_EQ(makeElementId(0, 0), 0);
    EXPECT_EQ(makeElementId(255, 0x7fffff), 0x7fffffff);
    EXPECT_EQ(makeElementId(2, 0x1000001), 0x1000001);
    EXPECT_EQ(getSubChartIndex(makeElementId(200, 77)), 200);
    EXPECT_EQ(getElementIndex(makeElementId(200, 77)), 77);
    EXPECT_EQ(nextCustomElementId(0), -1);
    EXPECT_EQ(nextCustomElementId(4), -5);
    EXPECT_TRUE(isCustomElement(-1));
    EXPECT_FALSE(isCustomElement(0x7fffffff));
}

} // namespace
} // namespace skyvane
