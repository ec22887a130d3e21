#pragma once

#include "terrain/TerrainMeshPair.h"
#include "terrain/paging/TerrainPager.h"

#include <irrlicht.h>
#include <memory>
#include <optional>
#include <string>

namespace skyvane {

class Context;
class IPanel;

/// What the displays ask of the terrain: the two meshes around the aircraft, the ground below it, profiles and images.
/// The work is TerrainPager's; here its results become the engine's meshes and images, and the panels are told.
///
/// Main thread only. Panels that have asked for images call deleteTerrainImageRequestsFromCaller before they go.
class TerrainManager {
public:
    enum TerrainTreeType { TREE_WORLD = 0 };

    /// The context outlives the manager and has its panels, sensors and settings. With `checkDirty` false the dirty
    /// check counts as done.
    TerrainManager(Context* context, std::string folder, bool checkDirty, TerrainTreeType type, int cacheSize);
    ~TerrainManager();
    TerrainManager(const TerrainManager&) = delete;
    TerrainManager& operator=(const TerrainManager&) = delete;

    /// Every frame; works at most twice a second.
    void Update();

    /// Computes the coarser levels behind a dialog when the installed tiles have changed: once, or again when forced.
    /// Needs running frames.
    void dirtyCheck(bool force);
    /// Frees all tiles and keeps fewer from now on. The thread is paused.
    void OnMustFreeMemory();

    /// While the thread is paused only.
    ITerrainData* requestCachedTerrainData(ITerrainNode* node) { return store_.requestCachedTerrainData(node); }
    ITerrainNode* getTerrainTree() { return store_.getRoot(); }
    TerrainTreeType getTerrainTreeType() const { return type_; }
    /// Whether there is a list of installed tiles, whatever they cover.
    bool hasTiles();
    const std::string& getTerrainPath() const { return store_.getFolder(); }

    /// Metres, at the aircraft; infinite without terrain there, or while nobody knows where it is.
    float getCurrentElevation() const;
    /// False also where only the samples of a far coarser tile tell of it.
    bool isCurrentElevationKnown() const { return !news_.lost && news_.isElevationKnown; }

    // The meshes lie around their positions: x east, y up from sea level, z north, in metres. They hold until the
    // panels are told to delete their nodes; null before the first.
    irr::scene::IMesh* getActiveMesh() const { return nearMeshes_.getActive(); }
    irr::scene::IMesh* getActiveWideMesh() const { return wideMeshes_.getActive(); }
    const ChartPosition& getActiveMeshPosition() const { return news_.near.centre; }
    const ChartPosition& getActiveWideMeshPosition() const { return news_.wide.centre; }
    float getActiveMeshRadius() const { return news_.near.radiusMetres; }
    float getActiveWideMeshRadius() const { return news_.wide.radiusMetres; }
    /// No terrain in the mesh, or no mesh, or a place that nobody knows: it isn't to be drawn.
    bool isWholeMeshUndefined() const { return news_.lost || news_.near.undefined; }
    bool isWholeWideMeshUndefined() const { return news_.lost || news_.wide.undefined; }
    /// Nobody knows all heights of the near mesh; what is missing in it looks like the sea.
    bool isMeshIncomplete() const { return news_.lost || news_.near.incomplete; }
    /// Vertices per side of the near mesh.
    int getMeshSampleAmount() const { return pager_.getNearMesh().getSampleAmount(); }

    // Metres, within the meshes.
    float getMaxTerrainElevationInVicinity() const;
    float getMinTerrainElevationInVicinity() const { return news_.near.minimum; }
    float getAverageTerrainElevationInVicinity() const { return news_.near.mean; }
    float getMaxWideTerrainElevation() const;
    float getMinWideTerrainElevation() const { return news_.wide.minimum; }

    /// Fills an image of format ECF_A8R8G8B8 and calls the panel's OnTerrainImageResult with it, in place of a waiting
    /// request of the panel.
    void requestTerrainImage(IPanel* panel, const ChartPosition& nw, const ChartPosition& se,
                             irr::video::IImage* image);
    void deleteTerrainImageRequestsFromCaller(IPanel* panel) { pager_.deleteImageRequests(panel); }
    /// In place of a waiting one of the same caller.
    void requestHeightPoints(std::unique_ptr<PointCall> call) { pager_.requestHeightPoints(std::move(call)); }
    void deleteHeightPointRequests(const ITerrainPointCallback* caller) { pager_.deleteHeightPointRequests(caller); }

    void setPauseThreadRequest(bool pause) { pager_.setPauseThreadRequest(pause); }
    bool isThreadPaused() const { return pager_.isThreadPaused(); }
    void pauseThread(bool pause) { pager_.pauseThread(pause); }

private:
    TerrainPager::Aircraft readAircraft() const;
    void makeNearMeshes();
    void exchangeNearMesh();
    void exchangeWideMesh();
    void deliver();
    void computeLevels();

    Context* context_;
    TerrainTreeType type_;
    TerrainStore store_;
    TerrainPager pager_;
    TerrainPager::News news_;
    TerrainMeshPair nearMeshes_, wideMeshes_;
    unsigned lastUpdateMilliseconds_ = 0;
    bool dirtyCheckDone_;
    std::optional<bool> hasTiles_; ///< Nothing before it was asked for.
};

} // namespace skyvane
