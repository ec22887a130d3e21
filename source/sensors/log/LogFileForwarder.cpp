#include "sensors/log/LogFileForwarder.h"

#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "sensors/ISensor.h"
#include "sensors/ISensorHost.h"
#include "sensors/log/LogIndex.h"

#include <utility>

namespace skyvane {
namespace {

constexpr int NoTimeOut = -1;

} // namespace

LogFileForwarder::LogFileForwarder(std::string fileName, const std::map<ISensorData::Type, ISensor*>& sensors,
                                   ISensorHost* host)
    : fileName_(std::move(fileName)), host_(host), writer_(fileName_) {
    const unsigned longAgo = MilliSecs() - 2 * static_cast<unsigned>(periodMs_);
    for (const auto& entry : sensors) {
        Source& source = sources_[entry.second];
        source.types.push_back(entry.first);
        source.lastWriteMs = longAgo;
    }
    for (const auto& entry : sources_)
        forward(entry.first);
}

LogFileForwarder::~LogFileForwarder() {
    if (host_)
        host_->removeMessage(this);
    writer_.close();
    logText("Writing Logfile index...", Logger::ToConsole);
    calculateLogIndex(fileName_);
}

void LogFileForwarder::forward(ISensor* sensor) {
    const auto found = sources_.find(sensor);
    if (found == sources_.end() || paused_)
        return;
    Source& source = found->second;
    const unsigned now = MilliSecs();
    const bool isDue = TimeDiff(now, source.lastWriteMs) > static_cast<unsigned>(periodMs_);
    if (isDue)
        source.lastWriteMs = now;
    for (const ISensorData::Type type : source.types)
        if ((isDue || isForOneFrame(type)) && sensor->lastTimeUpdated(type))
            if (ISensorData* record = sensor->getData(type))
                forward(type, record);
    writer_.flush();
    tellFailure();
}

void LogFileForwarder::tellFailure() {
    if (!fail() || toldFailure_)
        return;
    toldFailure_ = true;
    logText("Error: The log " + fileName_ + " can't be written any more.\n");
    if (host_)
        host_->setMessage(this, "The recording has ended: its log can't be written.", MESSAGE_YELLOW, NoTimeOut);
}

void LogFileForwarder::forward(ISensorData::Type type, ISensorData* record) {
    int length = 0;
    const void* form = record->serialize(&length);
    writer_.add(MilliSecs(), type, form, static_cast<uint32_t>(length));
}

} // namespace skyvane
