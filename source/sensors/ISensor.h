#pragma once

#include "sensors/records/ISensorData.h"

#include <string>
#include <vector>

namespace skyvane {

/// A source of records. Everything runs on the main thread; a sensor with a thread of its own hands over in Update.
class ISensor {
public:
    /// How far data can be trusted; larger is worse. Data that is too old must be WRONG: nothing else makes it expire.
    enum WarningLevel : int { GOOD = 0, MAYBE_WRONG = 1, WRONG = 2 };

    virtual std::string getName() = 0;
    /// Polls the sensor; true when it has new data in this frame.
    virtual bool Update() = 0;
    /// True when the data of this type was renewed by the last Update.
    virtual bool lastTimeUpdated(ISensorData::Type type) = 0;
    /// The current record or null. It stays the sensor's and may change at its next Update.
    virtual ISensorData* getData(ISensorData::Type type) = 0;
    virtual bool isDataTypeSupported(ISensorData::Type type) = 0;
    virtual std::vector<ISensorData::Type> getSupportedDataTypes() = 0;
    virtual WarningLevel getWarning(ISensorData::Type type) = 0;
    /// The sensor setup screen is entered, and left.
    virtual void OnSetup() {}
    virtual void OnSetupExit() {}
    /// The calibration button was pressed; true when the sensor did something.
    virtual bool OnCalibrate() { return false; }
    virtual std::string getSensorDetails() { return "-"; }
    /// A label for the calibration button, or null.
    virtual const char* getCalibLabelOverride() { return nullptr; }
    virtual ~ISensor() = default;
};

/// A sensor whose play position can be moved.
class ISeekableSensor : public ISensor {
public:
    /// A fraction from 0 to 1.
    virtual float getPlayPosition() = 0;
    virtual void setPlayPosition(float fraction) = 0;
};

} // namespace skyvane
