#pragma once

namespace skyvane {

/// What the pilot sets on a receiver's data. It lasts until the sensor ends.
struct GDL90Calibration {
    /// What the geometric altitude is measured from.
    enum AltitudeInterpretation {
        AltitudeAuto,     ///< As the device tells of itself; the ellipsoid for one that tells nothing.
        AltitudeMSL,      ///< Mean sea level.
        AltitudeEllipsoid ///< WGS84.
    };

    double rollOffsetDegrees = 0.0;  ///< The device's bank in level flight.
    double pitchOffsetDegrees = 0.0; ///< And its pitch.
    AltitudeInterpretation altitude = AltitudeAuto;
};

} // namespace skyvane
