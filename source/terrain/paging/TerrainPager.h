#pragma once

#include "terrain/mesh/NearMesh.h"
#include "terrain/mesh/WideMesh.h"
#include "terrain/paging/TerrainRequests.h"
#include "terrain/tree/TerrainSampler.h"
#include "terrain/tree/TerrainStore.h"

#include <condition_variable>
#include <list>
#include <memory>
#include <mutex>

namespace skyvane {

/// Keeps two meshes of the ground around the aircraft, answers profiles and images: all that takes time happens on its
/// thread, in rounds, and the main thread only hands over and takes.
///
///     TerrainPager pager(store, 181);
///     pager.start();
///     pager.exchange({position, altitude, true}, news);       // main thread, twice a second
///     if (news.nearMesh) ... news.near holds it now ...
///
/// A test calls runRound() instead of start(). The store belongs to the thread, and to the main thread while
/// isThreadPaused(). All other operations are the main thread's.
class TerrainPager {
public:
    struct Aircraft {
        ChartPosition position;
        double altitudeMetres = 0.0;
        bool available = false; ///< Both are known.
    };

    /// What has come since the last exchange. The meshes are the caller's to read until the next one, which fills them
    /// again: their memory goes round.
    struct News {
        TerrainMesh near, wide;
        bool nearMesh = false, wideMesh = false; ///< That one is new.
        /// Metres at the aircraft; infinite without terrain.
        float currentElevation = 0.0f;
        bool isElevationKnown = false; ///< As finely as it can be relied on.
        /// Nobody knows where the aircraft is: what was shown of the ground isn't right any more.
        bool lost = true;
        std::list<std::unique_ptr<PointCall>> points;
        std::list<std::unique_ptr<ImageCall>> images;
    };

    /// Told how long an exchange holds the lock: right after it has it and right before it gives it back.
    class ILockWatch {
    public:
        virtual void OnLocked() = 0;
        virtual void OnUnlocking() = 0;

    protected:
        ~ILockWatch() = default;
    };

    /// The store outlives the pager. Vertices per side of the near mesh.
    TerrainPager(TerrainStore& store, int sampleAmount);
    /// Waits for the round that goes on.
    ~TerrainPager();
    TerrainPager(const TerrainPager&) = delete;
    TerrainPager& operator=(const TerrainPager&) = delete;

    const NearMesh& getNearMesh() const { return nearMesh_; }

    /// False when there is no thread to be had.
    bool start();
    /// One round of the thread, without its sleep. False when the thread shall end.
    bool runRound();

    /// Hands requests and the aircraft's place to the thread and takes what is done.
    void exchange(const Aircraft& aircraft, News& news);
    /// For measurements; outlives the exchanges. Null for none.
    void watchLock(ILockWatch* watch) { lockWatch_ = watch; }

    /// In place of one of the same caller that waits.
    void requestHeightPoints(std::unique_ptr<PointCall> call);
    /// The caller isn't called any more.
    void deleteHeightPointRequests(const ITerrainPointCallback* caller);
    /// In place of one of the same requester that waits. While one of its images is made, the next waits.
    void requestImage(std::unique_ptr<ImageCall> call);
    /// Nothing comes for the requester any more.
    void deleteImageRequests(const void* requester);

    void setPauseThreadRequest(bool pause);
    bool isThreadPaused() const;
    /// Asks, and for a pause waits until the round that goes on has ended.
    void pauseThread(bool pause);

private:
    using PointCalls = std::list<std::unique_ptr<PointCall>>;
    using ImageCalls = std::list<std::unique_ptr<ImageCall>>;
    /// Where the aircraft was when a mesh was made.
    struct LastMesh {
        bool exists = false;
        ChartPosition position;
        ChartPosition centre; ///< Of the mesh.
        double altitudeMetres = 0.0;
    };

    static void* terrMain(void* self);
    void answerPoints(PointCalls& calls);
    void answerImages(ImageCalls& calls);
    void handOver(PointCalls& points, ImageCalls& images);
    void watchAircraft(const Aircraft& aircraft, bool nearWanted, bool wideWanted);
    /// Near or wide, ahead of the aircraft once one was made before.
    template <class Mesh>
    void build(Mesh& kind, const Aircraft& aircraft, LastMesh& last, TerrainMesh& mesh);
    void buildNear(const Aircraft& aircraft, const TerrainSampler::Height& ground);
    void buildWide(const Aircraft& aircraft);
    /// Under the lock.
    void setElevation(const TerrainSampler::Height& ground);
    bool isWideWorn(const ChartPosition& aircraft) const;
    void forgetMeshes();
    ImageCalls takeWaitingImages();
    void swapWithThread(const Aircraft& aircraft, ImageCalls& images, News& news);
    void dropUnwanted(News& news);
    bool isDropped(const void* who, unsigned number) const;

    TerrainStore& store_;
    NearMesh nearMesh_; ///< The thread's but for its size and triangles.
    const WideMesh wideMesh_;
    unsigned long thread_ = 0;
    bool started_ = false;

    // The main thread's.
    PointCalls waitingPoints_;
    ImageCalls waitingImages_;
    std::list<const void*> busyRequesters_; ///< With an image on the thread, done or not.
    unsigned nextNumber_ = 0;
    std::map<const void*, unsigned> dropBefore_; ///< Answers to earlier requests of these aren't wanted.
    ILockWatch* lockWatch_ = nullptr;

    // The thread's.
    LastMesh lastNear_, lastWide_;
    TerrainMesh loadingNear_, loadingWide_; ///< The main thread's too, while they are news and under the lock.

    /// Guards what follows; held to move lists and copy values, never while heights are looked up. Leaf.
    mutable std::mutex mutexMessageAndPos_;
    std::condition_variable wake_; ///< The thread is called, or has paused.
    Aircraft aircraft_;
    PointCalls pCalls_, finishedPoints_;
    ImageCalls calls_, finishedImages_;
    float currentElevation_ = 0.0f;
    bool isElevationKnown_ = false;
    bool lost_ = true;
    bool terrContinue_ = true, terrWideContinue_ = true;
    bool newMeshAvailable_ = false, newWideMeshAvailable_ = false;
    bool pauseRequest_ = false, isPaused_ = false, exitRequest_ = false;
};

} // namespace skyvane
