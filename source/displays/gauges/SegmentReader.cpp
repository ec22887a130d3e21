#include "displays/gauges/SegmentReader.h"

#include "displays/gauges/SegmentFormat.h"
#include "displays/gauges/SensorReading.h"
#include "sensors/SensorManager.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/ScalarData.h"

#include <cmath>

namespace skyvane {

namespace {

SegmentReading decide(const DialEvidence& evidence, const ShortText& text) {
    const DialFlag flag = decideDialFlag(evidence);
    return {isValueShown(flag) ? text : ShortText(notAvailable), flag};
}

SegmentReading unknown() {
    return {ShortText(notAvailable), DialFlag::Good};
}

ISensorData::Type recordOf(SegmentType type) {
    switch (type) {
    case SegmentType::GROUNDSPEED:
        return ISensorData::GroundSpeed;
    case SegmentType::PRESSURE_OUTSIDE:
        return ISensorData::OutsidePressure;
    case SegmentType::PRESSURE_INSIDE:
    case SegmentType::PRESSURE_ALTITUDE_INSIDE:
        return ISensorData::InsidePressure;
    case SegmentType::TEMPERATURE_INSIDE:
        return ISensorData::InsideTemperature;
    case SegmentType::TEMPERATURE_OUTSIDE:
        return ISensorData::OutsideTemperature;
    default:
        return ISensorData::Heading;
    }
}

ShortText formatScalar(SegmentType type, double value, bool metric) {
    switch (type) {
    case SegmentType::HEADING:
        return formatHeading(value);
    case SegmentType::GROUNDSPEED:
        return formatGroundSpeed(value, metric);
    case SegmentType::PRESSURE_ALTITUDE_INSIDE:
        return formatPressureAltitude(value, metric);
    default:
        return formatMeasurement(value);
    }
}

} // namespace

SegmentReading SegmentReader::read(const SegmentSources& sources) {
    switch (type_) {
    case SegmentType::BEARING:
    case SegmentType::ETE:
    case SegmentType::DISTANCE:
    case SegmentType::NEXTWPT:
        return readProcedure(sources);
    case SegmentType::ALTITUDE:
        return readAltitude(sources);
    case SegmentType::ALTITUDE_AGL:
        return readHeightAboveGround(sources);
    case SegmentType::ETA:
    case SegmentType::UTC:
    case SegmentType::DATE:
    case SegmentType::POSITION:
    case SegmentType::SATCOUNT:
        return readSatellites(sources);
    default:
        return readScalar(sources);
    }
}

SegmentReading SegmentReader::readScalar(const SegmentSources& sources) {
    DialEvidence evidence;
    const auto* record = readDefault<ScalarData>(*sources.sensors, recordOf(type_), evidence);
    evidence.finite = record && std::isfinite(record->value);
    return decide(evidence, record ? formatScalar(type_, record->value, sources.metric) : ShortText());
}

SegmentReading SegmentReader::readAltitude(const SegmentSources& sources) {
    DialEvidence evidence;
    readDefaultRecord(*sources.sensors, sources.sensors->getIndicatedAltitudeSource(), evidence);
    const double metres = sources.sensors->getIndicatedAltitude();
    evidence.finite = std::isfinite(metres);
    return decide(evidence, formatAltitude(metres, sources.metric));
}

SegmentReading SegmentReader::readHeightAboveGround(const SegmentSources& sources) {
    DialEvidence evidence;
    const auto* record = readDefault<ScalarData>(*sources.sensors, ISensorData::Altitude, evidence);
    const double metres = record ? record->value : 0.0;
    const ShortText text = formatHeightAboveGround(metres, sources.groundElevationMetres, sources.metric);
    if (record && std::isfinite(metres) && text == ShortText(notAvailable))
        return unknown();
    evidence.finite = std::isfinite(metres);
    return decide(evidence, text);
}

SegmentReading SegmentReader::readSatellites(const SegmentSources& sources) {
    if (type_ == SegmentType::ETA && sources.eteSeconds < 0)
        return unknown();
    DialEvidence evidence;
    const auto* record = readDefault<GPS_Data>(*sources.sensors, ISensorData::GPS, evidence);
    evidence.finite = true; // what a text needs of the numbers, the formats look at
    return decide(evidence, record ? formatSatelliteText(*record, sources) : ShortText());
}

ShortText SegmentReader::formatSatelliteText(const GPS_Data& record, const SegmentSources& sources) {
    switch (type_) {
    case SegmentType::ETA:
        return formatEta(record, sources.eteSeconds);
    case SegmentType::UTC:
        return formatUtc(record);
    case SegmentType::DATE:
        return formatDate(record);
    case SegmentType::POSITION:
        return cachedPosition(record);
    default:
        return formatSatellites(record);
    }
}

const ShortText& SegmentReader::cachedPosition(const GPS_Data& record) {
    static const ShortText none(notAvailable);
    if (!record.positionAvailable)
        return none;
    if (position_.view().empty() || record.latitude != latitude_ || record.longitude != longitude_) {
        latitude_ = record.latitude;
        longitude_ = record.longitude;
        position_ = formatPosition(record);
    }
    return position_;
}

SegmentReading SegmentReader::readProcedure(const SegmentSources& sources) {
    ShortText text(notAvailable);
    if (type_ == SegmentType::BEARING)
        text = formatBearing(sources.bearingDegrees);
    else if (type_ == SegmentType::ETE)
        text = formatEte(sources.eteSeconds);
    else if (type_ == SegmentType::DISTANCE)
        text = formatDistance(sources.distanceNauticalMiles, sources.metric);
    else if (!sources.nextWaypoint.view().empty())
        return {sources.nextWaypoint, DialFlag::Good};
    if (text == ShortText(notAvailable))
        return unknown();
    DialEvidence evidence;
    readDefaultRecord(*sources.sensors, ISensorData::Position, evidence);
    evidence.finite = true;
    return decide(evidence, text);
}

} // namespace skyvane
