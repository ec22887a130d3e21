#include "terrain/paging/TerrainPager.h"

#include "chart/geodesy/LocalFrame.h"
#include "core/threads/Threads.h"
#include "core/time/Time.h"
#include "terrain/paging/ProfileHeights.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <pthread.h>

namespace skyvane {
namespace {

constexpr std::chrono::milliseconds RoundTime(10);
/// Finer than every leaf.
constexpr double ElevationDensity = 200.0;
constexpr double NearMoveMetres = 300.0;
constexpr double NearClimbMetres = 100.0;
constexpr double WideMoveMetres = 5000.0;

using Lock = std::lock_guard<std::mutex>;

double distance(const ChartPosition& a, const ChartPosition& b) {
    return ChartPosition2Vector3df64(a, b, 0.0).getLength();
}

bool isUsable(const TerrainPager::Aircraft& aircraft) {
    return aircraft.available && std::isfinite(aircraft.position.longitude) &&
           std::isfinite(aircraft.position.latitude) && std::isfinite(aircraft.altitudeMetres);
}

} // namespace

TerrainPager::TerrainPager(TerrainStore& store, int sampleAmount) : store_(store), nearMesh_(sampleAmount) {}

TerrainPager::~TerrainPager() {
    {
        const Lock lock(mutexMessageAndPos_);
        exitRequest_ = true;
    }
    wake_.notify_all();
    if (started_)
        pthread_join(thread_, nullptr);
}

bool TerrainPager::start() {
    if (!started_)
        started_ = createThread(thread_, &TerrainPager::terrMain, this, true, 0);
    return started_;
}

void* TerrainPager::terrMain(void* self) {
    auto* pager = static_cast<TerrainPager*>(self);
    const auto isCalled = [pager] { return pager->exitRequest_ || pager->pauseRequest_ != pager->isPaused_; };
    do {
        // Not Delay(): a thread that waits must not move a clock that a test has put in place.
        std::unique_lock<std::mutex> lock(pager->mutexMessageAndPos_);
        pager->wake_.wait_for(lock, RoundTime, isCalled);
    } while (pager->runRound());
    return nullptr;
}

bool TerrainPager::runRound() {
    PointCalls points;
    ImageCalls images;
    Aircraft aircraft;
    bool nearWanted, wideWanted;
    {
        const Lock lock(mutexMessageAndPos_);
        isPaused_ = pauseRequest_;
        wake_.notify_all();
        if (exitRequest_ || isPaused_)
            return !exitRequest_;
        points.swap(pCalls_);
        images.swap(calls_);
        aircraft = aircraft_;
        nearWanted = terrContinue_;
        wideWanted = terrWideContinue_;
    }
    answerPoints(points);
    answerImages(images);
    handOver(points, images);
    if (isUsable(aircraft))
        watchAircraft(aircraft, nearWanted, wideWanted);
    else
        forgetMeshes();
    return true;
}

void TerrainPager::answerPoints(PointCalls& calls) {
    for (auto& call : calls) {
        fillProfileHeights(store_, *call);
        call->timeStamp = MilliSecs();
    }
}

void TerrainPager::answerImages(ImageCalls& calls) {
    TerrainSampler sampler(store_);
    for (auto& call : calls) {
        call->pixels.resize(static_cast<size_t>(std::max(call->width, 0)) *
                            static_cast<size_t>(std::max(call->height, 0)));
        call->figures = fillTerrainImage(sampler, call->nw, call->se, call->width, call->height, call->pixels.data());
    }
}

void TerrainPager::handOver(PointCalls& points, ImageCalls& images) {
    const Lock lock(mutexMessageAndPos_);
    finishedPoints_.splice(finishedPoints_.end(), points);
    finishedImages_.splice(finishedImages_.end(), images);
}

void TerrainPager::watchAircraft(const Aircraft& aircraft, bool nearWanted, bool wideWanted) {
    const TerrainSampler::Height ground = TerrainSampler(store_).sample(aircraft.position, ElevationDensity);
    const bool moved = !lastNear_.exists || distance(lastNear_.position, aircraft.position) > NearMoveMetres ||
                       std::fabs(lastNear_.altitudeMetres - aircraft.altitudeMetres) > NearClimbMetres;
    if (nearWanted && moved) {
        buildNear(aircraft, ground);
    } else {
        const Lock lock(mutexMessageAndPos_);
        setElevation(ground);
    }
    if (wideWanted && isWideWorn(aircraft.position))
        buildWide(aircraft);
}

void TerrainPager::setElevation(const TerrainSampler::Height& ground) {
    currentElevation_ = ground.metres;
    isElevationKnown_ = ground.isKnown;
    lost_ = false;
}

/// Far from where it was made, or, after turning back, from its middle: the near mesh must hide the hole there.
bool TerrainPager::isWideWorn(const ChartPosition& aircraft) const {
    return !lastWide_.exists || distance(lastWide_.position, aircraft) > WideMoveMetres ||
           distance(lastWide_.centre, aircraft) > WideMoveMetres;
}

template <class Mesh>
void TerrainPager::build(Mesh& kind, const Aircraft& aircraft, LastMesh& last, TerrainMesh& mesh) {
    const ChartPosition centre =
        last.exists ? moveAhead(last.position, aircraft.position, Mesh::AheadMetres) : aircraft.position;
    TerrainSampler sampler(store_);
    kind.build(sampler, centre, mesh);
    last = {true, aircraft.position, centre, aircraft.altitudeMetres};
}

void TerrainPager::buildNear(const Aircraft& aircraft, const TerrainSampler::Height& ground) {
    build(nearMesh_, aircraft, lastNear_, loadingNear_);
    const Lock lock(mutexMessageAndPos_);
    terrContinue_ = false;
    newMeshAvailable_ = true;
    setElevation(ground);
}

void TerrainPager::buildWide(const Aircraft& aircraft) {
    build(wideMesh_, aircraft, lastWide_, loadingWide_);
    const Lock lock(mutexMessageAndPos_);
    terrWideContinue_ = false;
    newWideMeshAvailable_ = true;
}

void TerrainPager::forgetMeshes() {
    lastNear_.exists = lastWide_.exists = false;
    const Lock lock(mutexMessageAndPos_);
    lost_ = true;
}

void TerrainPager::exchange(const Aircraft& aircraft, News& news) {
    ImageCalls images = takeWaitingImages();
    {
        const Lock lock(mutexMessageAndPos_);
        if (lockWatch_)
            lockWatch_->OnLocked();
        swapWithThread(aircraft, images, news);
        if (lockWatch_)
            lockWatch_->OnUnlocking();
    }
    dropUnwanted(news);
}

/// Under the lock: lists and meshes change hands, nothing is allocated or freed.
void TerrainPager::swapWithThread(const Aircraft& aircraft, ImageCalls& images, News& news) {
    pCalls_.splice(pCalls_.end(), waitingPoints_);
    calls_.splice(calls_.end(), images);
    news.points.splice(news.points.end(), finishedPoints_);
    news.images.splice(news.images.end(), finishedImages_);
    aircraft_ = aircraft;
    news.nearMesh = newMeshAvailable_;
    if (newMeshAvailable_)
        std::swap(loadingNear_, news.near);
    terrContinue_ |= newMeshAvailable_;
    newMeshAvailable_ = false;
    news.wideMesh = newWideMeshAvailable_;
    if (newWideMeshAvailable_)
        std::swap(loadingWide_, news.wide);
    terrWideContinue_ |= newWideMeshAvailable_;
    newWideMeshAvailable_ = false;
    news.currentElevation = currentElevation_;
    news.isElevationKnown = isElevationKnown_;
    news.lost = lost_;
}

} // namespace skyvane
