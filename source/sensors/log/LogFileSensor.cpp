#include "sensors/log/LogFileSensor.h"

#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Attitude_Data.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace skyvane {
namespace {

constexpr double SilentSeconds = 5.0;
constexpr uint32_t SilentMs = 5000;
/// What one update can add to the play time at most.
constexpr double LargestStepMs = 1e9;

uint32_t distance(uint32_t a, uint32_t b) {
    return a > b ? a - b : b - a;
}

} // namespace

LogFileSensor::LogFileSensor(std::string path, SensorManager* sensors, WarningLevel level)
    : path_(std::move(path)), sensors_(sensors), level_(level), log_(path_), records_(*sensors),
      updateSeconds_(Secs()) {
    for (const ISensorData::Type type : log_.types())
        types_[static_cast<size_t>(type)].inLog = true;
    readSample();
    for (TypeState& state : types_)
        state.updated = false;
    sensors_->registerSeekableSensor(this);
}

void LogFileSensor::showNotice() {
    if (noticeShown_)
        return;
    noticeShown_ = true;
    lastUpdateMs_ = MilliSecs();
    // When it was made, nobody knew yet what it is used for.
    sensors_->registerSeekableSensor(this);
    sensors_->getHost()->showMessageBox("A logfile is in use.\n"
                                        "The visualizations do NOT represent the actual situation.\n"
                                        "You may want to go to \"Sensor Setting\" to change that.");
}

bool LogFileSensor::Update() {
    showNotice();
    updateSeconds_ = Secs();
    if (index().samples.empty())
        return false;
    for (TypeState& state : types_)
        state.updated = false;
    movePlayTime();
    keepTypesAlive();
    bool came = false;
    if (!isAtPlayTime()) {
        current_ = index().find(current_, playMs_);
        came = readSample();
    }
    jumped_ = false;
    return came;
}

void LogFileSensor::movePlayTime() {
    const unsigned now = MilliSecs();
    const double elapsedMs = TimeDiff(now, lastUpdateMs_);
    lastUpdateMs_ = now;
    switch (sensors_->getPlaybackState()) {
    case SensorManager::PLAYBACK_PLAY: {
        const double stepMs = std::trunc(static_cast<double>(sensors_->getPlaybackSpeed()) * elapsedMs);
        if (stepMs > 0.0) // not for a speed that is no number
            playMs_ += static_cast<uint32_t>(std::min(stepMs, LargestStepMs));
        limitPlayTime();
        break;
    }
    case SensorManager::PLAYBACK_STOP:
        playMs_ = 0;
        jumped_ = true;
        break;
    default:
        break;
    }
}

void LogFileSensor::limitPlayTime() {
    const uint32_t end = index().endMs();
    if (playMs_ > end)
        playMs_ = sensors_->getPlaybackLoop() && end > 0 ? (playMs_ - 1) % end + 1 : end;
}

void LogFileSensor::keepTypesAlive() {
    if (sensors_->getPlaybackState() == SensorManager::PLAYBACK_PLAY)
        return;
    for (TypeState& state : types_)
        if (updateSeconds_ - state.lastSeconds < SilentSeconds)
            state.lastSeconds = updateSeconds_;
}

/// Whether the next sample is further away than the play time.
bool LogFileSensor::isAtPlayTime() const {
    const uint32_t here = index().samples[current_].timeMs;
    const size_t next = std::min(current_ + 1, index().samples.size() - 1);
    return distance(here, index().samples[next].timeMs) >= distance(playMs_, here);
}

bool LogFileSensor::readSample() {
    if (index().samples.empty() || current_ == lastRead_)
        return false;
    stopAtKey();
    const size_t before = lastRead_;
    const size_t landed = current_;
    if (!takeRecords())
        return false;
    if (jumped_)
        takeStateBefore(landed);
    if (before != NoSample && before > current_)
        startOver();
    return true;
}

/// What was there before a jump is of another moment. Each type that didn't come with the sample landed on gets its
/// last record before it, as far as that isn't too old; the others aren't offered until they come.
void LogFileSensor::takeStateBefore(size_t landed) {
    const auto& samples = index().samples;
    for (TypeState& state : types_)
        state.came = state.updated;
    LogFile::Record record;
    for (size_t i = landed; i-- > 0;) {
        if (distance(samples[i].timeMs, samples[landed].timeMs) > SilentMs)
            break;
        if (log_.read(i, record) && !types_[static_cast<size_t>(record.type)].came)
            takeRecord(i);
    }
}

/// All records of one time; the last of them becomes the current sample. One that can't be read is passed over.
bool LogFileSensor::takeRecords() {
    const auto& samples = index().samples;
    bool any = takeRecord(current_);
    while (current_ + 1 < samples.size() && samples[current_ + 1].timeMs == samples[current_].timeMs)
        any = takeRecord(++current_) || any;
    if (any)
        lastRead_ = current_;
    return any;
}

/// No reset is skipped, however fast the log plays. Only a jump backwards starts over instead.
void LogFileSensor::stopAtKey() {
    const bool backwards = jumped_ && current_ < lastRead_;
    if (index().keys.empty() || lastRead_ == NoSample || backwards)
        return;
    const size_t key = index().nextKey(lastRead_);
    const uint32_t away = index().forwardMs(lastRead_, key);
    if (away == 0 || away >= index().forwardMs(lastRead_, current_))
        return;
    current_ = index().firstOfItsTime(key);
    playMs_ = index().samples[key].timeMs;
}

bool LogFileSensor::takeRecord(size_t sample) {
    LogFile::Record record;
    if (!log_.read(sample, record) || !records_.take(record.type, record.form, record.length))
        return false;
    TypeState& state = types_[static_cast<size_t>(record.type)];
    state.came = true;
    state.updated = true;
    state.lastSeconds = updateSeconds_;
    return true;
}

void LogFileSensor::startOver() {
    current_ = 0;
    lastRead_ = 0;
    if (auto* attitude = static_cast<Attitude_Data*>(records_.get(ISensorData::Attitude)))
        attitude->resetKind = Attitude_Data::ResetToUnitMatrices;
}

bool LogFileSensor::lastTimeUpdated(ISensorData::Type type) {
    return ISensorData::isType(type) && types_[static_cast<size_t>(type)].updated;
}

bool LogFileSensor::isDataTypeSupported(ISensorData::Type type) {
    if (!ISensorData::isType(type))
        return false;
    const TypeState& state = types_[static_cast<size_t>(type)];
    return state.inLog && state.came && updateSeconds_ - state.lastSeconds <= SilentSeconds;
}

ISensorData* LogFileSensor::getData(ISensorData::Type type) {
    return isDataTypeSupported(type) ? records_.get(type) : nullptr;
}

float LogFileSensor::getPlayPosition() {
    const uint32_t end = index().endMs();
    // A key's time can lie behind the last sample's, where the clock wrapped.
    return end > 0 ? std::min(static_cast<float>(playMs_) / static_cast<float>(end), 1.0f) : 0.0f;
}

void LogFileSensor::setPlayPosition(float fraction) {
    const double end = index().endMs();
    const double wanted = end * static_cast<double>(fraction);
    playMs_ = wanted > 0.0 ? static_cast<uint32_t>(std::min(wanted, LargestStepMs)) : 0;
    jumped_ = true;
    limitPlayTime();
}

} // namespace skyvane
