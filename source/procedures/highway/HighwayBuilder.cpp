#include "procedures/highway/HighwayBuilder.h"

#include "chart/geodesy/GreatCircle.h"
#include "core/threads/Threads.h"

#include <algorithm>
#include <chrono>
#include <pthread.h>
#include <utility>

namespace skyvane {
namespace {

constexpr std::chrono::milliseconds RoundTime(1000);

using Lock = std::lock_guard<std::mutex>;

} // namespace

HighwayBuilder::~HighwayBuilder() {
    {
        const Lock lock(mutexMessageAndPos_);
        exitRequest_ = true;
    }
    wake_.notify_one();
    if (started_)
        pthread_join(thread_, nullptr);
}

void HighwayBuilder::setShape(GateShape shape) {
    const auto isCorner = [&shape](uint16_t index) { return index < shape.corners.size(); };
    const bool usable = !shape.indices.empty() && shape.corners.size() <= GateShape::MostCorners &&
                        std::all_of(shape.indices.begin(), shape.indices.end(), isCorner);
    if (usable && !started_)
        shape_ = std::move(shape);
}

bool HighwayBuilder::start() {
    if (!started_)
        started_ = createThread(thread_, &HighwayBuilder::procMain, this, true, 0);
    return started_;
}

void* HighwayBuilder::procMain(void* self) {
    auto* builder = static_cast<HighwayBuilder*>(self);
    while (builder->runRound()) {
        std::unique_lock<std::mutex> lock(builder->mutexMessageAndPos_);
        builder->wake_.wait_for(
            lock, RoundTime, [builder] { return builder->exitRequest_ || (builder->newPath_ && builder->updated_); });
    }
    return nullptr;
}

bool HighwayBuilder::isWorn(const Aircraft& aircraft) const {
    return !isBuilt_ || !(aircraft.size == builtSize_) ||
           calcDistance2(builtAt_, aircraft.position) > std::min(coveredMetres_ / 2.0, MostMovedMetres);
}

/// A mesh that nobody has fetched yet waits; the next is built when it is gone.
bool HighwayBuilder::runRound() {
    Aircraft aircraft;
    bool hasNewPath;
    {
        const Lock lock(mutexMessageAndPos_);
        if (exitRequest_)
            return false;
        if (newMesh_ || !updated_)
            return true;
        aircraft = aircraft_;
        hasNewPath = newPath_;
        if (hasNewPath)
            builtPath_.swap(path_);
        newPath_ = updated_ = false;
    }
    if (hasNewPath)
        isBuilt_ = false;
    if (!aircraft.available && !builtPath_.empty())
        return true;
    if (!isWorn(aircraft))
        return true;
    buildHighway(builtPath_, aircraft.position, aircraft.altitudeMetres, aircraft.size, shape_, loading_);
    builtAt_ = aircraft.position;
    builtSize_ = aircraft.size;
    coveredMetres_ = loading_.coveredMetres;
    isBuilt_ = true;
    const Lock lock(mutexMessageAndPos_);
    newMesh_ = !newPath_; // which would come too late
    return true;
}

void HighwayBuilder::setPath(const CourseList& path) {
    const Lock lock(mutexMessageAndPos_);
    path_.assign(path.begin(), path.end());
    newPath_ = true;
    newMesh_ = false;
}

bool HighwayBuilder::exchange(const Aircraft& aircraft, HighwayMesh& mesh) {
    const Lock lock(mutexMessageAndPos_);
    aircraft_ = aircraft;
    updated_ = true;
    if (newPath_)
        wake_.notify_one();
    if (!newMesh_)
        return false;
    std::swap(loading_, mesh);
    newMesh_ = false;
    return true;
}

} // namespace skyvane
