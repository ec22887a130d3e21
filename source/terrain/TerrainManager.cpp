#include "terrain/TerrainManager.h"

#include "chart/DialogProgress.h"
#include "core/Context.h"
#include "core/files/FilesOfFolder.h"
#include "core/log/Logger.h"
#include "core/system/SystemManager.h"
#include "core/time/Time.h"
#include "displays/IPanel.h"
#include "displays/PanelManager.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Position_Data.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainIndexFile.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace skyvane {
namespace {

constexpr unsigned UpdateMilliseconds = 500;
constexpr float UnknownMaximum = -32768.0f;

/// Vertices per side of the near mesh.
int sampleAmountOf(int terrainDetailLevel) {
    return terrainDetailLevel == 1 || terrainDetailLevel == 2 ? 181 : 128;
}

/// An image on its way; the engine's is touched on the main thread only.
struct PanelImageCall : ImageCall {
    PanelImageCall(IPanel* who, const ChartPosition& northWest, const ChartPosition& southEast,
                   irr::video::IImage* target)
        : ImageCall(who, northWest, southEast, static_cast<int>(target->getDimension().Width),
                    static_cast<int>(target->getDimension().Height)),
          panel(who), image(EngineRef<irr::video::IImage>::share(target)) {}

    void copyPixels() {
        auto* row = static_cast<unsigned char*>(image->lock());
        const size_t rowBytes = static_cast<size_t>(width) * sizeof(uint32_t);
        for (int y = 0; y < height && row; ++y, row += image->getPitch())
            std::memcpy(row, pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(width), rowBytes);
        image->unlock();
    }

    IPanel* panel;
    EngineRef<irr::video::IImage> image;
};

irr::core::aabbox3df boxOf(const TerrainMesh& mesh) {
    return {-mesh.radiusMetres, mesh.minimum, -mesh.radiusMetres, mesh.radiusMetres, mesh.maximum, mesh.radiusMetres};
}

} // namespace

TerrainManager::TerrainManager(Context* context, std::string folder, bool checkDirty, TerrainTreeType type,
                               int cacheSize)
    : context_(context), type_(type), store_(std::move(folder), cacheSize),
      pager_(store_, sampleAmountOf(context->getPanelManager()->getTerrainDetailLevel())),
      dirtyCheckDone_(!checkDirty) {
    if (!pager_.start())
        logText("No thread for the terrain: there will be none.\n");
}

TerrainManager::~TerrainManager() = default;

void TerrainManager::Update() {
    const unsigned now = MilliSecs();
    if (TimeDiff(now, lastUpdateMilliseconds_) < UpdateMilliseconds)
        return;
    lastUpdateMilliseconds_ = now;
    pager_.exchange(readAircraft(), news_);
    if (news_.nearMesh)
        exchangeNearMesh();
    if (news_.wideMesh)
        exchangeWideMesh();
    deliver();
}

TerrainPager::Aircraft TerrainManager::readAircraft() const {
    SensorManager* sensors = context_->getSensorManager();
    const auto read = [sensors](ISensorData::Type type) {
        ISensor* sensor = sensors->getDefaultSensor(type);
        return sensor ? sensor->getData(type) : nullptr;
    };
    const auto* position = static_cast<Position_Data*>(read(ISensorData::Position));
    const auto* altitude = static_cast<Altitude_Data*>(read(ISensorData::Altitude));
    if (!position || !altitude)
        return {};
    return {ChartPosition(position->longitude, position->latitude), altitude->value, true};
}

void TerrainManager::makeNearMeshes() {
    const NearMesh& mesh = pager_.getNearMesh();
    const auto side = static_cast<size_t>(mesh.getSampleAmount());
    nearMeshes_ = TerrainMeshPair(mesh.makeIndices(), side * side, mesh.getSampleAmount());
}

void TerrainManager::exchangeNearMesh() {
    if (!nearMeshes_.getActive())
        makeNearMeshes();
    PanelManager* panels = context_->getPanelManager();
    nearMeshes_.fill(news_.near, boxOf(news_.near));
    panels->OnTerrainNodesDelete();
    nearMeshes_.swap();
    panels->OnTerrainMeshExchanged();
}

void TerrainManager::exchangeWideMesh() {
    constexpr size_t vertexCount = static_cast<size_t>(WideMesh::Rings) * WideMesh::VerticesPerRing;
    if (!wideMeshes_.getActive())
        wideMeshes_ = TerrainMeshPair(WideMesh::makeIndices(), vertexCount, 0);
    PanelManager* panels = context_->getPanelManager();
    constexpr float far = WideMesh::BoxMetres;
    wideMeshes_.fill(news_.wide, irr::core::aabbox3df(-far, -far, -far, far, far, far));
    panels->OnWideTerrainNodesDelete();
    wideMeshes_.swap();
    panels->OnWideTerrainMeshExchanged();
}

/// A receiver may ask anew, or take its other requests back: each answer leaves the list before it is delivered.
void TerrainManager::deliver() {
    while (!news_.images.empty()) {
        const std::unique_ptr<ImageCall> call = std::move(news_.images.front());
        news_.images.pop_front();
        auto& done = static_cast<PanelImageCall&>(*call);
        done.copyPixels();
        done.panel->OnTerrainImageResult(done.nw, done.se, done.image.get(), done.figures.undefined,
                                         done.figures.minimum, done.figures.average, done.figures.maximum);
    }
    while (!news_.points.empty()) {
        const std::unique_ptr<PointCall> call = std::move(news_.points.front());
        news_.points.pop_front();
        call->caller->OnHeightPoints(*call);
    }
}

void TerrainManager::requestTerrainImage(IPanel* panel, const ChartPosition& nw, const ChartPosition& se,
                                         irr::video::IImage* image) {
    if (!image || image->getColorFormat() != irr::video::ECF_A8R8G8B8) {
        logText("A terrain image needs 32 bits a pixel.\n");
        return;
    }
    pager_.requestImage(std::make_unique<PanelImageCall>(panel, nw, se, image));
}

float TerrainManager::getCurrentElevation() const {
    return news_.lost ? std::numeric_limits<float>::infinity() : news_.currentElevation;
}

float TerrainManager::getMaxTerrainElevationInVicinity() const {
    return news_.lost ? UnknownMaximum : news_.near.maximum;
}

float TerrainManager::getMaxWideTerrainElevation() const {
    return news_.lost ? UnknownMaximum : news_.wide.maximum;
}

void TerrainManager::OnMustFreeMemory() {
    store_.freeMemory();
}

void TerrainManager::dirtyCheck(bool force) {
    if (dirtyCheckDone_ && !force)
        return;
    dirtyCheckDone_ = true;
    if (!isFolderDirty(store_.getFolder()))
        return;
    logText("Terrain dirty flag found...\n");
    pager_.pauseThread(true);
    store_.clearCache();
    computeLevels();
    store_.getRoot()->resetLoadable();
    pager_.pauseThread(false);
}

bool TerrainManager::hasTiles() {
    if (!hasTiles_) {
        const std::vector<std::string> lists = filesOfFolder(store_.getFolder(), TerrainIndexEnding);
        hasTiles_ = std::any_of(lists.begin(), lists.end(), [](const auto& name) { return name != CommonIndexName; });
    }
    return *hasTiles_;
}

void TerrainManager::computeLevels() {
    hasTiles_.reset();
    SystemManager* system = context_->getSystemManager();
    DialogProgress progress(context_, DialogProgress::Kind::Long);
    const bool complete = store_.getRoot()->OnUpdate(store_.getFolder().c_str(), &progress, system->getSystemMemory(),
                                                     static_cast<unsigned>(system->getCPUCoreCount()));
    if (complete && !setFolderDirty(store_.getFolder(), false))
        logText("The terrain folder can't be written: " + store_.getFolder() + "\n");
}

} // namespace skyvane
