#include "terrain/paging/TerrainPager.h"

#include <algorithm>

namespace skyvane {
namespace {

using Lock = std::lock_guard<std::mutex>;

} // namespace

void TerrainPager::requestHeightPoints(std::unique_ptr<PointCall> call) {
    waitingPoints_.remove_if([&](const auto& waiting) { return waiting->caller == call->caller; });
    call->number = nextNumber_++;
    waitingPoints_.push_back(std::move(call));
}

void TerrainPager::deleteHeightPointRequests(const ITerrainPointCallback* caller) {
    waitingPoints_.remove_if([&](const auto& waiting) { return waiting->caller == caller; });
    dropBefore_[caller] = nextNumber_;
}

void TerrainPager::requestImage(std::unique_ptr<ImageCall> call) {
    waitingImages_.remove_if([&](const auto& waiting) { return waiting->requester == call->requester; });
    call->number = nextNumber_++;
    waitingImages_.push_back(std::move(call));
}

void TerrainPager::deleteImageRequests(const void* requester) {
    waitingImages_.remove_if([&](const auto& waiting) { return waiting->requester == requester; });
    dropBefore_[requester] = nextNumber_;
}

bool TerrainPager::isDropped(const void* who, unsigned number) const {
    const auto it = dropBefore_.find(who);
    return it != dropBefore_.end() && number < it->second;
}

/// Images that may go to the thread: those of requesters without one there.
TerrainPager::ImageCalls TerrainPager::takeWaitingImages() {
    ImageCalls ready;
    for (auto it = waitingImages_.begin(); it != waitingImages_.end();) {
        const auto call = it++;
        const void* requester = (*call)->requester;
        if (std::find(busyRequesters_.begin(), busyRequesters_.end(), requester) != busyRequesters_.end())
            continue;
        busyRequesters_.push_back(requester);
        ready.splice(ready.end(), waitingImages_, call);
    }
    return ready;
}

/// After the lists were taken, without the lock.
void TerrainPager::dropUnwanted(News& news) {
    for (const auto& call : news.images)
        busyRequesters_.remove(call->requester);
    news.images.remove_if([this](const auto& call) { return isDropped(call->requester, call->number); });
    news.points.remove_if([this](const auto& call) { return isDropped(call->caller, call->number); });
}

void TerrainPager::setPauseThreadRequest(bool pause) {
    {
        const Lock lock(mutexMessageAndPos_);
        pauseRequest_ = pause;
    }
    wake_.notify_all();
}

bool TerrainPager::isThreadPaused() const {
    const Lock lock(mutexMessageAndPos_);
    return isPaused_ && pauseRequest_;
}

void TerrainPager::pauseThread(bool pause) {
    setPauseThreadRequest(pause);
    std::unique_lock<std::mutex> lock(mutexMessageAndPos_);
    if (pause && started_)
        wake_.wait(lock, [this] { return isPaused_ || !pauseRequest_; });
}

} // namespace skyvane
