#pragma once

#include "sensors/raw/RawSourceBase.h"

namespace skyvane {

/// The sensors inside the device. No driver fills it on this platform: it has a default receiver record and nothing
/// else.
class InternalRawDataSource : public RawSourceBase {
public:
    void receiveAndLockData(ThreadInfo*, unsigned int) override { lock(); }
    bool getCompatibility() override { return true; }
    bool getGPS(GPS_Data& gps) override {
        gps = GPS_Data();
        return true;
    }
    std::string getRawNMEA() override { return {}; }
    bool getConnectivity() override { return true; }
    std::string getName() override { return "Internal Sensors"; }
};

} // namespace skyvane
