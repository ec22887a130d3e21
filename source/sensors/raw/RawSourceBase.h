#pragma once

#include "sensors/raw/IRawSource.h"

#include <mutex>

namespace skyvane {

/// A source that has only what its class adds: every getter but those says that the value isn't there, and nothing is
/// taken back.
class RawSourceBase : public IRawSource {
public:
    void unLock() override { mutex_.unlock(); }
    bool getAcc(Vector&) override { return false; }
    bool getGyro(Vector&) override { return false; }
    bool getMag(Vector&) override { return false; }
    bool getUnCalibratedMag(Vector&) override { return false; }
    bool getIntegratedMatrix(Matrix3x3&) override { return false; }
    bool getTemperature(double&) override { return false; }
    bool getPressure(double&) override { return false; }
    bool getDeltaMatrix(Matrix3x3&, double&, double&) override { return false; }
    void setInterpolatedMatrix(ThreadInfo*, const Matrix3x3&) override {}
    void setCalibrationBias(ThreadInfo*, double, double, double, double) override {}
    void setMagCalibration(ThreadInfo*, double, double, double) override {}
    void setCalibrationMatrix(ThreadInfo*, const Matrix3x3&) override {}
    bool receiveUnCorrectedAcc(ThreadInfo*, Vector&) override { return false; }

protected:
    void lock() { mutex_.lock(); }

private:
    std::mutex mutex_; ///< Guards the source's values from receiveAndLockData to unLock. Leaf.
};

} // namespace skyvane
