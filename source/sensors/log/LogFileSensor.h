#pragma once

#include "sensors/ISensor.h"
#include "sensors/RecordSet.h"
#include "sensors/log/LogFile.h"

#include <array>
#include <string>

namespace skyvane {

class SensorManager;

/// Plays a recorded flight as if its devices delivered it now: the manager's playback state, speed and loop decide how
/// the play time moves. All records of one time arrive together. Main thread only.
///
/// A type is offered while its last record isn't older than 5 seconds, pauses not counted; after a jump, when its last
/// record there isn't. Whoever skips over a record
/// that tells estimators to start over gets that record; whoever goes back gets such a reset, and the play goes on from
/// the first sample.
class LogFileSensor : public ISeekableSensor {
public:
    /// The manager outlives the sensor. A log without an index gets one, which blocks. The level is that of all
    /// data. A log that can't be read gives a sensor without data.
    LogFileSensor(std::string path, SensorManager* sensors, WarningLevel level);

    std::string getName() override { return "LogFile: " + path_; }
    /// At the first call the user is told that nothing shown is real.
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type type) override;
    ISensorData* getData(ISensorData::Type type) override;
    bool isDataTypeSupported(ISensorData::Type type) override;
    std::vector<ISensorData::Type> getSupportedDataTypes() override { return log_.types(); }
    /// WRONG for a type that isn't offered.
    WarningLevel getWarning(ISensorData::Type type) override { return isDataTypeSupported(type) ? level_ : WRONG; }

    float getPlayPosition() override;
    /// Of the whole log, also while it is paused.
    void setPlayPosition(float fraction) override;

private:
    static constexpr size_t NoSample = static_cast<size_t>(-1);

    struct TypeState {
        bool inLog = false;
        bool came = false;
        bool updated = false;
        double lastSeconds = 0.0; ///< Secs() of the Update that brought its last record, or of a later pause.
    };

    const LogIndex& index() const { return log_.index(); }
    void showNotice();
    void movePlayTime();
    void limitPlayTime();
    void keepTypesAlive();
    bool isAtPlayTime() const;
    bool readSample();
    void stopAtKey();
    bool takeRecords();
    bool takeRecord(size_t sample);
    void takeStateBefore(size_t landed);
    void startOver();

    std::string path_;
    SensorManager* sensors_;
    WarningLevel level_;
    LogFile log_;
    RecordSet records_;
    std::array<TypeState, ISensorData::TypeCount> types_;
    uint32_t playMs_ = 0;
    unsigned lastUpdateMs_ = 0;
    double updateSeconds_;
    size_t current_ = 0;
    size_t lastRead_ = NoSample;
    bool jumped_ = false; ///< By a seek or a stop, since the last Update.
    bool noticeShown_ = false;
};

} // namespace skyvane
