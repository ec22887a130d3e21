#pragma once

#include "attitude/math/Matrix3x3.h"
#include "core/geometry/EngineMath.h"
#include "sensors/records/GPS_Data.h"

#include <string>

namespace skyvane {

class ThreadInfo;

/// What the attitude estimator reads: gyroscope, accelerometer, magnetometer and receiver of a device, unfiltered.
///
///     source.receiveAndLockData(thread, MilliSecs());
///     if (source.getAcc(acceleration)) ...
///     source.unLock();
///
/// Each getter tells whether the value is there, and leaves its argument as it was when not. Getters are called between
/// receiveAndLockData and unLock, by the thread that called it.
class IRawSource {
public:
    using Vector = irr::core::vector3d<double>;

    /// Brings the source up to date and locks it. The time is of MilliSecs().
    virtual void receiveAndLockData(ThreadInfo* thread, unsigned int milliseconds) = 0;
    virtual void unLock() = 0;
    /// False once the source is known to be unusable.
    virtual bool getCompatibility() = 0;
    virtual bool getAcc(Vector& metresPerSecondSquared) = 0;
    virtual bool getGyro(Vector& radiansPerSecond) = 0;
    virtual bool getMag(Vector& field) = 0;
    virtual bool getUnCalibratedMag(Vector& field) = 0;
    virtual bool getGPS(GPS_Data& gps) = 0;
    virtual bool getIntegratedMatrix(Matrix3x3& matrix) = 0;
    virtual bool getTemperature(double& celsius) = 0;
    virtual bool getPressure(double& millibars) = 0;
    virtual bool getSamplePeriod(double&) { return false; }
    virtual bool getDeltaMatrix(Matrix3x3& matrix, double& t0, double& t1) = 0;
    /// The receiver's text of the last read.
    virtual std::string getRawNMEA() = 0;
    // What a device that calibrates itself takes back.
    virtual void setInterpolatedMatrix(ThreadInfo* thread, const Matrix3x3& matrix) = 0;
    virtual void setCalibrationBias(ThreadInfo* thread, double x, double y, double z, double temperature) = 0;
    virtual void setMagCalibration(ThreadInfo* thread, double x, double y, double z) = 0;
    virtual void setCalibrationMatrix(ThreadInfo* thread, const Matrix3x3& matrix) = 0;
    virtual bool receiveUnCorrectedAcc(ThreadInfo* thread, Vector& metresPerSecondSquared) = 0;
    /// True while the link is up.
    virtual bool getConnectivity() = 0;
    virtual std::string getName() = 0;
    virtual ~IRawSource() = default;
};

} // namespace skyvane
