#pragma once

#include "sensors/records/FixedFormData.h"

#include <string>

namespace skyvane {

/// A satellite receiver's view. The flags at the end tell which fields carry live data.
/// Byte form, 128 bytes: the fields in their order here, each flag one byte (see GPS_Data.cpp for the offsets).
class GPS_Data : public FixedFormData<128> {
public:
    Type getType() override { return GPS; }
    void Print() override;

    /// Whole degrees, minutes with fraction, and the hemisphere's letter; "-" when the value isn't finite.
    std::wstring calcLatitudeString() const;
    std::wstring calcLongitudeString() const;
    /// The whole record as text for a diagnostic panel, one field a line.
    std::wstring toString() const;

    /// UTC.
    int hour = -1;
    int minute = -1;
    int second = -1;
    int millisecond = -1;
    unsigned timeStamp = 0;
    /// Degrees, south and west negative.
    double latitude = -1.0;
    double longitude = -1.0;
    /// As NMEA GGA tells it.
    int fixQuality = 0;
    int satelliteCount = -1;
    /// Metres.
    double altitude = -1.0;
    /// As NMEA GSA tells it: 1 none, 2 two-dimensional, 3 three-dimensional.
    int fixType = 1;
    double pdop = -1.0;
    double hdop = -1.0;
    double vdop = -1.0;
    /// Of position, velocity and track.
    int status = 0;
    int day = -1;
    int month = -1;
    int year = -1;
    /// Knots.
    double groundSpeed = -1.0;
    /// Degrees.
    double groundTrack = -1.0;
    double magneticVariation = -9999.0;

    bool timeAvailable = false;
    bool positionAvailable = false;
    bool altitudeAvailable = false;
    bool dilutionOfPrecisionAvailable = false;
    bool dateAvailable = false;
    bool speedAvailable = false;
    bool groundTrackAvailable = false;
    bool magneticVariationAvailable = false;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane
