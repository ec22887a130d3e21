#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/gauges/SegmentType.h"
#include "displays/gauges/ShortText.h"

namespace skyvane {

class GPS_Data;
class SensorManager;

/// What a value field may show. Without a procedure or terrain the defaults stand for "not known".
struct SegmentSources {
    SensorManager* sensors = nullptr;
    double bearingDegrees = -1.0;
    int eteSeconds = -1;
    double distanceNauticalMiles = -1.0;
    ShortText nextWaypoint;
    double groundElevationMetres = 0.0; ///< 0 where nobody knows it.
    bool metric = false;
};

struct SegmentReading {
    ShortText text;
    DialFlag flag = DialFlag::Good;
};

/// Reads and formats the value of one field; a failed value is never shown, it reads "n/A".
///
/// A value that nobody can know now (no procedure, no terrain) is "n/A" too, but no failure. What a procedure tells is
/// believed as far as the position that it comes from. Allocates nothing while the position stays.
class SegmentReader {
public:
    explicit SegmentReader(SegmentType type) : type_(type) {}
    SegmentReading read(const SegmentSources& sources);

private:
    SegmentReading readScalar(const SegmentSources& sources);
    SegmentReading readAltitude(const SegmentSources& sources);
    SegmentReading readHeightAboveGround(const SegmentSources& sources);
    SegmentReading readSatellites(const SegmentSources& sources);
    SegmentReading readProcedure(const SegmentSources& sources);
    ShortText formatSatelliteText(const GPS_Data& record, const SegmentSources& sources);
    const ShortText& cachedPosition(const GPS_Data& record);

    SegmentType type_;
    double latitude_ = 0.0;
    double longitude_ = 0.0;
    ShortText position_; ///< Of the place above; empty before the first.
};

} // namespace skyvane
