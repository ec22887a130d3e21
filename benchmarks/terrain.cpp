#include "Bench.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/files/CompressedBlock.h"
#include "terrain/jobs/TerrainJob.h"
#include "terrain/mesh/NearMesh.h"
#include "terrain/paging/TerrainPager.h"
#include "terrain/tree/TerrainSampler.h"
#include "terrain/tree/TileSampling.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <zlib.h>

namespace skyvane {
namespace {

using Tile = std::vector<int16_t>;

/// A folder in memory that goes with the measurement: a disk isn't what is measured.
class TileFolder {
public:
    TileFolder() {
        const std::string parent = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
        std::string pattern = parent + "/skyvane-bench-XXXXXX";
        path_ = std::string(mkdtemp(pattern.data())) + "/";
    }
    ~TileFolder() { std::filesystem::remove_all(path_); }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// Ridges and valleys with the roughness of mountains, which compress as real tiles do.
Tile mountainTile(unsigned seed) {
    Tile tile(TileSamples);
    double rough = 0.0;
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column) {
            seed = seed * 1664525u + 1013904223u;
            rough = 0.9 * rough + static_cast<double>(seed >> 28) - 7.5;
            const double ridges =
                std::sin(row * 0.011) * std::cos(column * 0.013) + std::sin((row + column) * 0.037) / 3;
            tile[static_cast<size_t>(row * TileSide + column)] = static_cast<int16_t>(1200 + 700 * ridges + rough);
        }
    return tile;
}

MMTerrainNode* findCell(TerrainStore& store, double west, double north, double width, double height) {
    return static_cast<MMTerrainNode*>(findFittingNode(store.getRoot(), {west, north}, {west + width, north - height}));
}

/// The mesh as it is built, against the same places and normals over one array in memory, without any tree.
double nearMesh(bool smoke) {
    const TileFolder folder;
    TerrainStore store(folder.path(), TerrainStore::DefaultCacheSize);
    const Tile tile = mountainTile(1);
    for (const auto& [width, height, north] : {std::tuple(1.0, 1.0, 43.0), {2.0, 1.0, 43.0}, {4.0, 2.0, 44.0}})
        saveTile(getTilePath(folder.path(), findCell(store, 0, north, width, height)->getId()), tile.data());
    NearMesh near(181);
    const ChartPosition centre(0.5, 42.5);
    TerrainMesh mesh, plain;
    near.build(*std::make_unique<TerrainSampler>(store), centre, mesh); // loads the tiles
    plain = mesh;
    const ChartPosition nw(0, 43), se(1, 42);
    const auto build = [&] {
        TerrainSampler sampler(store);
        near.build(sampler, centre, mesh);
    };
    const auto overArray = [&] {
        for (TerrainVertex& vertex : plain.vertices) {
            ChartPosition place = Vector3df2ChartPosition(centre, vertex.position);
            place = {Angle0to360(place.longitude), Latitudinize(place.latitude)};
            vertex.position.Y = sampleTile(tile.data(), nw, se, place, true);
        }
        calcGridNormals(plain.vertices, near.getSampleAmount(), GridColumns::Open);
    };
    return ratioOfMedians(
        smoke ? 1 : 31, [&] { return secondsOf(build); }, [&] { return secondsOf(overArray); });
}

/// Reading a tile from a file, against inflating the same bytes that are in memory already.
double tileLoading(bool smoke) {
    const TileFolder folder;
    const std::string path = getTilePath(folder.path(), 1);
    Tile tile = mountainTile(2);
    saveTile(path, tile.data());
    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const auto load = [&] { loadTile(path, tile.data()); };
    const auto inflateOnly = [&] {
        uLongf length = TileBytes;
        uncompress(reinterpret_cast<Bytef*>(tile.data()), &length, reinterpret_cast<const Bytef*>(bytes.data()) + 4,
                   static_cast<uLong>(bytes.size() - 4));
    };
    return ratioOfMedians(
        smoke ? 1 : 15, [&] { return secondsOf(load); }, [&] { return secondsOf(inflateOnly); });
}

/// This thread's own time: what takes longer may have to share the processor with other programs.
double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double processorSecondsOf(const std::function<void()>& work) {
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

class NoProgress : public ITerrainProgress {
public:
    void setTitle(const std::string&) override {}
    void setProgress(double) override {}
    void setState(const std::string&) override {}
    bool isCancelled() override { return false; }
};

/// The levels over generated leaves from 0 east and 44 north on, computed by so many threads of the pool; 0 stands for
/// the calling thread, which is measured by its own time.
class LevelsBench {
public:
    LevelsBench(int columns, int rows) {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column) {
                tiles_.push_back(mountainTile(static_cast<unsigned>(row * columns + column)));
                const int id = findCell(store_, column, 44 - row, 1, 1)->getId();
                saveTile(getTilePath(folder_.path(), id), tiles_.back().data());
            }
    }

    double run(int threads) {
        NoProgress progress;
        TerrainJob job(store_.getRoot(), folder_.path(), progress, {threads, threads, threads});
        const auto compute = [&] { job.recalculateMipMapLevels(); };
        return threads == 0 ? processorSecondsOf(compute) : secondsOf(compute);
    }

    /// Nothing but inflating every leaf, the means, and deflating every tile that comes of them.
    double runPlain() {
        std::vector<std::vector<Bytef>> leaves;
        for (const Tile& tile : tiles_)
            leaves.push_back(deflated(tile));
        std::vector<std::pair<MMTerrainNode*, Tile>> results;
        for (MMTerrainNode* node = findCell(store_, 0, 44, 2, 1); node; node = node->getParent())
            for (int id = 0; id < TerrainNodeCount; ++id) // every node of its level that the job has made
                if (sameSize(*node, *store_.getNode(id)) && exists(id))
                    results.emplace_back(store_.getNode(id), Tile(TileSamples));
        for (auto& [node, tile] : results)
            loadTile(getTilePath(folder_.path(), node->getId()), tile.data());
        Tile child(TileSamples), parent(TileSamples);
        return processorSecondsOf([&] {
            for (const auto& leaf : leaves) {
                uLongf length = TileBytes;
                uncompress(reinterpret_cast<Bytef*>(child.data()), &length, leaf.data(), leaf.size());
                averageIntoParent(child.data(), 2, 1, 0, 0, parent.data());
            }
            for (const auto& [node, tile] : results)
                deflated(tile);
        });
    }

private:
    static std::vector<Bytef> deflated(const Tile& tile) {
        std::vector<Bytef> bytes(compressBound(TileBytes));
        uLongf length = static_cast<uLongf>(bytes.size());
        compress2(bytes.data(), &length, reinterpret_cast<const Bytef*>(tile.data()), TileBytes, 9);
        bytes.resize(length);
        return bytes;
    }
    static bool sameSize(const MMTerrainNode& a, const MMTerrainNode& b) {
        return a.getColumns() == b.getColumns() &&
               std::fabs((a.getSEEdge().longitude - a.getNWEdge().longitude) -
                         (b.getSEEdge().longitude - b.getNWEdge().longitude)) < 1e-6;
    }
    bool exists(int id) const { return std::filesystem::exists(getTilePath(folder_.path(), id)); }

    TileFolder folder_;
    TerrainStore store_{folder_.path(), TerrainStore::DefaultCacheSize};
    std::vector<Tile> tiles_;
};

double levels(bool smoke) {
    LevelsBench bench(smoke ? 1 : 4, smoke ? 1 : 2);
    bench.run(0);
    return ratioOfMedians(
        smoke ? 1 : 3, [&] { return bench.run(0); }, [&] { return bench.runPlain(); });
}

/// How many times quicker two threads are than one.
double levelsScaling(bool smoke) {
    LevelsBench bench(smoke ? 2 : 8, smoke ? 1 : 4);
    return ratioOfMedians(
        1, [&] { return bench.run(1); }, [&] { return bench.run(2); });
}

class NoCaller : public ITerrainPointCallback {
public:
    void OnHeightPoints(PointCall&) override {}
};

/// Flies over mountains while the terrain's thread builds meshes, profiles and images.
class ExchangeFlight {
public:
    ExchangeFlight() {
        const Tile tile = mountainTile(5);
        for (const auto& [width, height, north] : {std::tuple(2.0, 1.0, 43.0), {4.0, 2.0, 44.0}, {8.0, 4.0, 44.0}})
            saveTile(getTilePath(folder_.path(), findCell(store_, 0, north, width, height)->getId()), tile.data());
    }

    /// Does an exchange, and gives what it measures of it, in seconds.
    using Measure = std::function<double(const std::function<void()>& exchange)>;

    /// The longest of all exchanges, in microseconds; NaN without a thread.
    double longestMicroseconds(int exchanges, const Measure& measure) {
        if (!pager.start())
            return std::nan("");
        double longest = 0.0;
        int meshes = 0;
        for (int i = 0; i < exchanges || meshes == 0; ++i) {
            request();
            const ChartPosition place(0.5, 42.2 + 0.0003 * i);
            const double seconds = measure([&] { pager.exchange({place, 1000.0, true}, news_); });
            if (i >= 20) // the first ones touch new memory
                longest = std::max(longest, seconds);
            meshes += news_.nearMesh;
            news_.points.clear();
            news_.images.clear();
            usleep(1000);
        }
        return longest * 1e6;
    }

private:
    void request() {
        pager.requestHeightPoints(std::make_unique<PointCall>(&caller_, row_, 0.01));
        pager.requestImage(
            std::make_unique<ImageCall>(&store_, ChartPosition(0.2, 42.8), ChartPosition(0.8, 42.2), 64, 64));
    }

    TileFolder folder_;
    TerrainStore store_{folder_.path(), TerrainStore::DefaultCacheSize};
    NoCaller caller_;
    TerrainPager::News news_;
    const std::vector<ChartPosition> row_{500, ChartPosition(0.5, 42.5)};

public:
    TerrainPager pager{store_, 181};
};

/// The longest of three flights of eight minutes each; the least of the three, since an interrupt of the machine
/// lengthens one or the other, but what the program does it does on each.
double longestOnEachFlight(bool smoke, const std::function<double(ExchangeFlight& flight, int exchanges)>& fly) {
    std::vector<double> longest;
    for (int i = 0; i < (smoke ? 1 : 3); ++i) {
        ExchangeFlight flight;
        longest.push_back(fly(flight, smoke ? 50 : 1000));
    }
    return *std::min_element(longest.begin(), longest.end());
}

/// The longest exchange of a frame, in microseconds of the frame's own time.
double exchange(bool smoke) {
    return longestOnEachFlight(smoke, [](ExchangeFlight& flight, int exchanges) {
        return flight.longestMicroseconds(exchanges, processorSecondsOf);
    });
}

/// How long the last exchange held the lock.
class LockTime : public TerrainPager::ILockWatch {
public:
    explicit LockTime(double (*clock)()) : clock_(clock) {}
    void OnLocked() override { start_ = clock_(); }
    void OnUnlocking() override { held_ = clock_() - start_; }
    double held() const { return held_; }

private:
    double (*clock_)();
    double start_ = 0.0, held_ = 0.0;
};

double wallSeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double lockMicroseconds(bool smoke, double (*clock)()) {
    return longestOnEachFlight(smoke, [clock](ExchangeFlight& flight, int exchanges) {
        LockTime time(clock);
        flight.pager.watchLock(&time);
        return flight.longestMicroseconds(exchanges, [&time](const std::function<void()>& exchange) {
            exchange();
            return time.held();
        });
    });
}

/// The longest time for which a frame keeps the terrain's thread from its lock, of the frame's own time.
double lock(bool smoke) {
    return lockMicroseconds(smoke, processorSeconds);
}

/// The same by the clock on the wall, in which other programs may have had the processor.
double lockWall(bool smoke) {
    return lockMicroseconds(smoke, wallSeconds);
}

} // namespace

std::vector<Bench> terrainBenches() {
    return {{"terrain.near-mesh", Bench::Bound::AtMost, 1.5, nearMesh},
            {"terrain.tile", Bench::Bound::AtMost, 1.2, tileLoading},
            {"terrain.levels", Bench::Bound::AtMost, 1.2, levels},
            {"terrain.levels-scaling", Bench::Bound::AtLeast, 1.5, levelsScaling},
            {"terrain.exchange-us", Bench::Bound::AtMost, 50, exchange},
            {"terrain.lock-us", Bench::Bound::AtMost, 5, lock},
            {"terrain.lock-wall-us", Bench::Bound::AtMost, 50, lockWall}};
}

} // namespace skyvane
