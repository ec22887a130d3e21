#include "displays/mapmath/MapRenderQueue.h"

#include "chart/areas/AreaFixture.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace skyvane;

namespace {

/// Draws into a list; each load and each drawing takes its time on a clock of its own.
class Recorder : public IMapQueueUser {
public:
    bool isPotentiallyRenderable(int, const uint8_t* bytes) override { return bytes[1] != 1; }
    bool findPriority(int index, int& priority) override {
        clock += secondsEach;
        priority = 100 * (index % 3);
        return index % 11 != 0; // such can't be loaded
    }
    void draw(int index) override {
        clock += secondsEach;
        drawn.push_back(index);
    }
    void finishPriority(int priority) override { finished.push_back(priority); }
    double now() override { return clock; }

    double clock = 1000.0;
    double secondsEach = 0.0;
    std::vector<int> drawn;
    std::vector<int> finished;
};

class MapRenderQueueTest : public AreaTest {
protected:
    /// Elements in every third leaf of the whole earth, each in up to three leaves, some that nobody wants to see.
    void fill(unsigned seed) {
        std::mt19937 random(seed);
        std::vector<AreaLeaf*> leafs;
        for (int i = 0; i < AreaCount; ++i)
            if (IArea* area = table()[i]; area && area->asLeaf())
                leafs.push_back(area->asLeaf());
        std::uniform_int_distribution<size_t> anyLeaf(0, leafs.size() - 3);
        for (int id = 0; id < 30000; ++id) {
            const uint8_t bytes[3] = {3, static_cast<uint8_t>(id % 5 == 0), 0};
            const size_t first = anyLeaf(random);
            for (size_t k = 0; k <= id % 3u; ++k)
                leafs[first + k]->addElement(id, bytes);
        }
    }

    std::set<int> twin(const MapBox& box) {
        std::set<int> ids;
        for (int i = 0; i < AreaCount; ++i) {
            const IArea* area = table()[i];
            const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
            if (!leaf || !leaf->Overlap(box.getNW(), box.getSE()))
                continue;
            for (const int id : leaf->getElements())
                if (id % 5 != 0 && id % 11 != 0)
                    ids.insert(id);
        }
        return ids;
    }
};

} // namespace

TEST_F(MapRenderQueueTest, DrawsEachElementOfABoxOnceInOrder) {
    fill(1);
    MapRenderQueue queue;
    for (const MapBox& box : {MapBox{0.0, 40.0, 10.0, 50.0}, MapBox{175.0, -20.0, 190.0, 20.0},
                              MapBox{-5.0, -89.0, 5.0, 89.0}, MapBox{-300.0, 0.0, 300.0, 1.0}}) {
        Recorder recorder;
        queue.start(this, box);
        EXPECT_TRUE(queue.run(recorder, 0.03));
        EXPECT_EQ(twin(box), std::set<int>(recorder.drawn.begin(), recorder.drawn.end()));
        EXPECT_EQ(twin(box).size(), recorder.drawn.size()) << "each once";
        EXPECT_EQ((std::vector<int>{0, 100, 200}), recorder.finished);
        EXPECT_TRUE(
            std::is_sorted(recorder.drawn.begin(), recorder.drawn.end(), [](int a, int b) { return a % 3 < b % 3; }));
    }
}

TEST_F(MapRenderQueueTest, GoesOnWhereTheTimeEnded) {
    fill(2);
    const MapBox box{-30.0, 20.0, 30.0, 60.0};
    MapRenderQueue queue;
    Recorder whole, pieces;
    queue.start(this, box);
    ASSERT_TRUE(queue.run(whole, 1e9));
    pieces.secondsEach = 0.001;
    queue.start(this, box);
    int rounds = 0;
    for (bool done = false; !done; ++rounds) {
        const double start = pieces.clock;
        done = queue.run(pieces, 0.03);
        EXPECT_LT(pieces.clock - start, 0.03 + 0.001 + 0.033) << "little more than it was given";
    }
    EXPECT_GT(rounds, 10);
    EXPECT_EQ(whole.drawn, pieces.drawn);
    EXPECT_EQ(whole.finished, pieces.finished);
}

TEST_F(MapRenderQueueTest, CanBeginAnewAndHaveNoCharts) {
    fill(3);
    MapRenderQueue queue;
    Recorder recorder;
    EXPECT_TRUE(queue.isDone());
    queue.start(nullptr, {0.0, 0.0, 10.0, 10.0});
    EXPECT_TRUE(queue.run(recorder, 1.0));
    recorder.secondsEach = 0.01;
    queue.start(this, {0.0, 0.0, 40.0, 40.0});
    EXPECT_FALSE(queue.run(recorder, 0.03));
    recorder = Recorder();
    queue.start(this, {0.0, 40.0, 1.0, 41.0});
    EXPECT_TRUE(queue.run(recorder, 1.0));
    EXPECT_EQ(twin({0.0, 40.0, 1.0, 41.0}).size(), recorder.drawn.size());
}
