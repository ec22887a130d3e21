#pragma once

#include "sensors/ISensorForwarder.h"
#include "sensors/log/LogWriter.h"
#include "sensors/records/ISensorData.h"

#include <map>
#include <string>
#include <vector>

namespace skyvane {

class ISensorHost;

/// Records a flight: writes what the chosen sensors renew into a log, in every frame but at most once a forward period,
/// uplinks always. Its end indexes the log, which blocks for as long as it takes to read it.
class LogFileForwarder : public ISensorForwarder {
public:
    /// Replaces the file and writes first records. The sensors outlive the forwarder; each type comes from its sensor.
    /// The host, which outlives it too, tells the pilot when the recording breaks off; null tells the log alone.
    LogFileForwarder(std::string fileName, const std::map<ISensorData::Type, ISensor*>& sensors,
                     ISensorHost* host = nullptr);
    ~LogFileForwarder() override;

    void forward(ISensor* sensor) override;
    /// Writes one record.
    void forward(ISensorData::Type type, ISensorData* record);
    void setForwardPeriod(int milliseconds) override { periodMs_ = milliseconds > 0 ? milliseconds : 0; }
    std::string getName() override { return "LogFileForwarder: " + fileName_; }
    void setPause(bool paused) override { paused_ = paused; }
    /// The file couldn't be made, or can't be written any more.
    bool fail() const { return writer_.fail(); }

private:
    struct Source {
        std::vector<ISensorData::Type> types;
        unsigned lastWriteMs;
    };

    void tellFailure();

    std::string fileName_;
    ISensorHost* host_;
    LogWriter writer_;
    int periodMs_ = 20;
    bool paused_ = false;
    bool toldFailure_ = false;
    std::map<ISensor*, Source> sources_;
};

} // namespace skyvane
