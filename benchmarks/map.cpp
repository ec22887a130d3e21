// The moving map over the Pyrenees, where SKYVANE_DATA has them, else over the fictional region: a frame that stands
// still, the frames while tiles fill, and a chart that is full of elements.
#include "Bench.h"
#include "DemoProgram.h"

#include "chart/elements/MarkElement.h"
#include "chart/store/ChartSetWriter.h"
#include "chart/store/SetDescription.h"
#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapParts.h"
#include "gui/font/FlexibleFont.h"
#include "sensors/SensorManager.h"
#include "terrain/TerrainManager.h"

#include <GL/gl.h>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace skyvane {

namespace {

namespace fs = std::filesystem;

const char* const demoConfig = "tools/demo/config.ini";
constexpr double budgetSeconds = 0.03;
constexpr int manyElements = 100000;

/// The real time, in which nobody ever waits.
class RunningClock : public IClock {
public:
    double seconds() override {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count() + skipped_;
    }
    void delay(int milliseconds) override { skipped_ = skipped_ + std::max(milliseconds, 0) / 1000.0; }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::atomic<double> skipped_{0.0};
};

enum class Charts { Landscape, Crowded };

std::string dataFolder() {
    const char* data = std::getenv("SKYVANE_DATA");
    return data && fs::exists(std::string(data) + "/osm/andorra.osm.pbf") ? data : std::string();
}

void compileLandscape(const std::string& home) {
    const std::string build = benchBuildFolder(), charts = home + "/.Skyvane/ChartData";
    const std::string maker = build + "/tools/chartmaker/chartmaker ", data = dataFolder();
    const std::string command =
        data.empty() ? "tools/demo/build-region.sh " + build + " " + charts + " 1 " + home + "/.Skyvane/Terrain"
                     : maker + "compile --out " + charts + " --vendor Bench --area Pyrenees --region 0,41,3,44 " +
                           "--airports " + data + "/airports --ground " + data + "/osm/andorra.osm.pbf && " + maker +
                           "terrain --out " + home + "/.Skyvane/Terrain --name Pyrenees " + data + "/terrain/*.zip";
    if (std::system(("(" + command + ") >/dev/null 2>&1").c_str()) != 0)
        std::fprintf(stderr, "The map is measured without charts: they could not be compiled.\n");
}

/// Marks all over the view.
void writeCrowd(const std::string& home) {
    const std::string folder = home + "/.Skyvane/ChartData/Crowd";
    fs::create_directories(folder);
    ChartSetWriter set(folder);
    std::mt19937 random(31);
    std::uniform_real_distribution<double> longitude(1.0, 2.0), latitude(42.2, 42.8);
    for (int i = 0; i < manyElements; ++i) {
        MarkElement mark;
        mark.name = "M" + toText(i);
        mark.position = ChartPosition(longitude(random), latitude(random));
        set.add(mark);
    }
    if (set.finish())
        SetDescription{1, "Bench", "Crowd", "Crowd"}.save(home + "/.Skyvane/ChartData/Crowd.sci");
}

std::string writeConfig() {
    IniFile config(demoConfig);
    config.set("", "PanelCount", "0");
    const std::string path = benchBuildFolder() + "/bench-map.ini";
    return config.Save(path) ? path : std::string();
}

bool isComplete(Map2D& map) {
    return map.getParts().tiles.isComplete() && !map.getParts().tiles.isFilling();
}

/// A map of its own in the program's window, over a place that a simulation holds.
class MapProgram {
public:
    explicit MapProgram(Charts charts)
        : program_(writeConfig(), [charts](const std::string& home) {
              fs::create_directories(home + "/.Skyvane/Terrain");
              fs::create_directories(home + "/.Skyvane/ChartData");
              if (charts == Charts::Landscape)
                  compileLandscape(home);
              else if (charts == Charts::Crowded)
                  writeCrowd(home);
          }) {
        if (!program_.isGood())
            return;
        setClock(&clock_);
        program_.begin();
        Context& context = program_.getContext();
        hasTerrain_ = charts == Charts::Landscape;
        const bool isReal = charts != Charts::Landscape || !dataFolder().empty();
        context.getSensorManager()->startSimulation(isReal ? ChartPosition(1.5, 42.5) : ChartPosition(-28.5, 42.3), 30,
                                                    2500);
        MapSettings settings;
        settings.switches.marks = charts != Charts::Landscape;
        map_ = makeMap(settings);
    }
    ~MapProgram() {
        map_.reset();
        setClock(nullptr);
    }

    bool isGood() const { return map_ != nullptr; }
    Map2D& getMap() { return *map_; }
    MapParts& getParts() { return map_->getParts(); }
    void markDirty() { map_->OnProcedureChanged(); }
    bool isComplete() { return skyvane::isComplete(*map_); }
    /// One more, with tiles of its own; it goes before the program.
    std::unique_ptr<Map2D> makeMap(const MapSettings& settings) {
        Context& context = program_.getContext();
        auto map = std::make_unique<Map2D>(&context, settings, "", writers_);
        map->setFactory(context.getPanelManager()->getPanelFactory(0));
        return map;
    }

    /// Whatever draws, in a frame of its own; until the driver has drawn it.
    double frameSeconds(const std::function<void()>& draw) {
        irr::video::IVideoDriver* driver = program_.getDevice()->getVideoDriver();
        program_.getDevice()->run();
        return secondsOf([&] {
            driver->beginScene(true, true, irr::video::SColor(0xff000000));
            draw();
            driver->endScene();
            glFinish();
        });
    }
    double mapSeconds() { return mapSeconds(*map_); }
    double mapSeconds(Map2D& map) {
        program_.getContext().getSensorManager()->Update();
        if (TerrainManager* terrain = program_.getContext().getPanelManager()->getTerrainManager())
            terrain->Update();
        return frameSeconds([&] { map.render(panel_); });
    }
    /// Frames until everything has come.
    void settle() { settle({map_.get()}); }
    /// Frames of these maps in turns until all are whole and their labels stand.
    void settle(const std::vector<Map2D*>& maps) {
        const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(8);
        for (int still = 0; still < 20 && std::chrono::steady_clock::now() < until;) {
            bool isStill = true;
            for (Map2D* map : maps) {
                mapSeconds(*map);
                const MapParts& parts = map->getParts();
                const bool hasGround = parts.terrain.isDrawable() || !hasTerrain_;
                isStill = isStill && skyvane::isComplete(*map) && !parts.labels.isSolving() && hasGround;
            }
            still = isStill ? still + 1 : 0;
        }
    }
    double plainSeconds();
    Drawer2D* getDrawer() { return program_.getContext().getDrawer(); }
    /// Of the pixels in which the two maps differ.
    double differingShare(Map2D& one, Map2D& other);

private:
    RunningClock clock_; ///< Threads of the program ask it until they end.
    DemoProgram program_;
    TileWriters writers_;
    std::unique_ptr<Map2D> map_;
    bool hasTerrain_ = false;
    irr::core::rect<int> panel_{0, 0, 1280, 673};
};

double MapProgram::differingShare(Map2D& one, Map2D& other) {
    const int width = panel_.getWidth(), height = panel_.getHeight();
    const auto pixelsOf = [&](Map2D& map) {
        std::vector<uint32_t> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
        frameSeconds([&] {
            map.render(panel_);
            getDrawer()->flush();
            glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
        });
        return pixels;
    };
    const std::vector<uint32_t> first = pixelsOf(one), second = pixelsOf(other);
    double count = 0.0;
    for (size_t i = 0; i < first.size(); ++i)
        count += first[i] != second[i] ? 1.0 : 0.0;
    return count / static_cast<double>(first.size());
}

/// The same ground, tiles and labels as they lie now, and nothing else.
double MapProgram::plainSeconds() {
    MapParts& parts = getParts();
    Drawer2D* drawer = program_.getContext().getDrawer();
    FlexibleFont* font = program_.getContext().getFlexibleFont();
    struct Label {
        irr::core::rect<int> rect;
        const RGDContent* content;
    };
    std::vector<Label> labels;
    for (const RGDContent& content : parts.labels.getShown())
        if (parts.labels.calcRect(content).isRectCollided(panel_))
            labels.push_back({parts.labels.calcRect(content), &content});
    return frameSeconds([&] {
        drawer->setViewPort(panel_);
        drawer->drawFilledRect(panel_, irr::video::SColor(0xff518949));
        parts.terrain.draw(parts.view, 2500.0, true);
        parts.tiles.draw(parts.view, 255);
        for (const Label& label : labels)
            drawer->drawFilledRect(label.rect, label.content->background);
        drawer->flush();
        for (const Label& label : labels) {
            FlexibleFont::Placement placement;
            placement.scale = font->getDefaultScale() * label.content->scale;
            placement.translation.set(static_cast<float>(label.rect.UpperLeftCorner.X),
                                      static_cast<float>(label.rect.UpperLeftCorner.Y));
            if (label.content->letters)
                font->drawFontMeshBuffer(label.content->letters.get(), panel_, font->getDefaultStyle(), placement);
        }
        drawer->resetViewPort();
    });
}

double steadyFrame(bool smoke) {
    MapProgram map(Charts::Landscape);
    if (!map.isGood())
        return std::nan("");
    map.settle();
    return ratioOfMedians(
        smoke ? 5 : 150, [&map] { return map.mapSeconds(); }, [&map] { return map.plainSeconds(); });
}

/// By how much the worst frame of a rebuild is longer than one without and its budget, in milliseconds.
double rebuildOverrun(bool smoke) {
    MapProgram map(Charts::Landscape);
    if (!map.isGood())
        return std::nan("");
    map.settle();
    std::vector<double> worst;
    for (int round = 0; round < (smoke ? 1 : 7); ++round) {
        std::vector<double> steady;
        for (int i = 0; i < 9; ++i)
            steady.push_back(map.mapSeconds());
        const double allowed = median(steady) + budgetSeconds;
        map.markDirty();
        double longest = map.mapSeconds();
        for (int frame = 0; frame < 200 && !map.isComplete(); ++frame)
            longest = std::max(longest, map.mapSeconds());
        worst.push_back(1000.0 * (longest - allowed));
    }
    return std::max(0.0, median(worst));
}

double completeFrames(bool) {
    MapProgram map(Charts::Landscape);
    if (!map.isGood())
        return std::nan("");
    int frames = 1;
    map.mapSeconds(); // makes the targets and begins
    while (!map.isComplete() && frames < 1000) {
        map.mapSeconds();
        ++frames;
    }
    return frames;
}

/// Paints that share of each tile at once.
class SharePainter : public MapTiles::ITilePainter {
public:
    SharePainter(Drawer2D* drawer, double share) : drawer_(drawer), share_(share) {}
    void beginTile(const MapBox&, const MapBox&, int edge) override { edge_ = edge; }
    bool proceedTile(double) override {
        drawer_->drawFilledRect({0, 0, edge_, static_cast<int>(std::lround(share_ * edge_))},
                                irr::video::SColor(0xff808080));
        drawer_->flush();
        return true;
    }

private:
    Drawer2D* drawer_;
    double share_;
    int edge_ = 0;
};

/// A map full of elements against one beside it in the same program that shows none of them, frame by frame in turns.
/// As much of the other one's tiles is painted as of the first one's, for pixels that are painted cost the software
/// renderer more than clear ones, whoever has painted them.
double crowdedFrame(bool smoke) {
    MapProgram program(Charts::Crowded);
    if (!program.isGood())
        return std::nan("");
    Map2D& crowded = program.getMap();
    const std::unique_ptr<Map2D> bare = program.makeMap(MapSettings());
    program.settle({&crowded, bare.get()});
    SharePainter painter(program.getDrawer(), program.differingShare(crowded, *bare));
    MapParts& parts = bare->getParts();
    parts.tiles.begin(parts.view);
    while (!parts.tiles.proceed(painter, budgetSeconds)) {
    }
    return ratioOfMedians(
        smoke ? 5 : 150, [&] { return program.mapSeconds(crowded); }, [&] { return program.mapSeconds(*bare); });
}

} // namespace

std::vector<Bench> mapBenches() {
    return {{"map.frame", Bench::Bound::AtMost, 1.3, steadyFrame},
            {"map.rebuild-overrun-ms", Bench::Bound::AtMost, 5.0, rebuildOverrun},
            {"map.complete-frames", Bench::Bound::AtMost, 25.0, completeFrames},
            {"map.elements-extra", Bench::Bound::AtMost, 1.05, crowdedFrame}};
}

} // namespace skyvane
