#include "displays/vision/VisionReader.h"

#include "chart/ExtendedChart.h"
#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/gauges/AttitudeGauge.h"
#include "displays/gauges/SensorReading.h"
#include "displays/gauges/TurnGauge.h"
#include "displays/instruments/TargetName.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/ViewPose.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/framework/IProcedure.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/AngleOfAttack_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/ExtendedHeading_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "terrain/TerrainManager.h"

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// The value of a record with one number, and its flag.
template <class Record>
PfdReadings::Trusted<double> readValueOf(SensorManager& sensors, ISensorData::Type type) {
    DialEvidence evidence;
    PfdReadings::Trusted<double> result;
    if (const auto* record = readDefault<Record>(sensors, type, evidence)) {
        evidence.finite = std::isfinite(record->value);
        result.value = evidence.finite ? record->value : 0.0;
    }
    result.flag = decideDialFlag(evidence);
    return result;
}

void readAttitude(SensorManager& sensors, VisionReadings& readings) {
    DialEvidence evidence;
    ViewPose pose;
    const auto* record = readDefault<Attitude_Data>(sensors, ISensorData::Attitude, evidence);
    evidence.finite = record && lookAlong(record->matrix, pose);
    if (evidence.finite) {
        readings.attitude = Matrix3x3(pose.up, pose.forward);
        readings.hasAttitude = true;
    }
    readings.trust.attitude = decideDialFlag(evidence);
}

void readPosition(SensorManager& sensors, VisionReadings& readings) {
    DialEvidence evidence;
    const auto* record = readDefault<Position_Data>(sensors, ISensorData::Position, evidence);
    evidence.finite = record && std::isfinite(record->longitude) && std::isfinite(record->latitude) &&
                      std::abs(record->latitude) <= 90.0;
    if (evidence.finite)
        readings.position = {record->longitude, record->latitude};
    readings.trust.position = decideDialFlag(evidence);
}

void readMotion(SensorManager& sensors, PfdReadings& bars) {
    bars.airSpeedKnots = readValueOf<AirSpeed_Data>(sensors, ISensorData::AirSpeed);
    DialEvidence air;
    const auto* airSpeed = readDefault<AirSpeed_Data>(sensors, ISensorData::AirSpeed, air);
    // A record that was never written (0 at time 0) is no air speed.
    bars.hasAirSpeed = airSpeed && (airSpeed->value != 0.0 || airSpeed->timeStamp != 0);
    bars.groundSpeedKnots = readValueOf<GroundSpeed_Data>(sensors, ISensorData::GroundSpeed);
    bars.verticalSpeedMetres = readValueOf<VerticalSpeed_Data>(sensors, ISensorData::VerticalSpeed);
    const double filtered = sensors.getFilteredVerticalSpeed();
    if (std::isfinite(filtered))
        bars.verticalSpeedMetres.value = filtered;
    DialEvidence evidence;
    bars.sideways.value = 0.0;
    if (const auto* record = readDefault<Acceleration_Data>(sensors, ISensorData::Acceleration, evidence)) {
        bars.sideways.value = calcSideways({record->x, record->y, record->z});
        evidence.finite = std::isfinite(bars.sideways.value);
    }
    bars.sideways.flag = decideDialFlag(evidence);
}

void readAngleOfAttack(SensorManager& sensors, PfdReadings& bars) {
    DialEvidence evidence;
    const auto* record = readDefault<AngleOfAttack_Data>(sensors, ISensorData::AngleOfAttack, evidence);
    bars.hasAngleOfAttack = record && (record->angle != 0.0f || record->timeStamp != 0);
    if (record) {
        bars.angleOfAttack.value = {static_cast<double>(record->angle), static_cast<double>(record->maximum),
                                    record->inParts != 0};
        evidence.finite = std::isfinite(record->angle) && std::isfinite(record->maximum);
    }
    bars.angleOfAttack.flag = decideDialFlag(evidence);
}

void readAltimeter(SensorManager& sensors, const VisionReadings& vision, PfdReadings& bars) {
    DialEvidence evidence;
    readDefaultRecord(sensors, sensors.getIndicatedAltitudeSource(), evidence);
    bars.altitudeMetres.value = sensors.getIndicatedAltitude();
    evidence.finite = std::isfinite(bars.altitudeMetres.value);
    bars.altitudeMetres.flag = decideDialFlag(evidence);
    bars.seaLevelHeightMetres = {vision.altitudeMetres, vision.trust.altitude};
    bars.groundMetres = vision.groundMetres;
    bars.seaLevelMillibars = sensors.getSeaLevelPressure();
    bars.isSatelliteAltitude = sensors.getForceGNSSAltitude();
}

void readHeadings(SensorManager& sensors, const VisionReadings& vision, PfdReadings& bars) {
    bars.headingDegrees = {vision.headingDegrees, vision.trust.heading};
    bars.magneticDegrees.reset();
    DialEvidence evidence;
    const auto* record = readDefault<ExtendedHeading_Data>(sensors, ISensorData::ExtendedHeading, evidence);
    evidence.finite = record && std::isfinite(record->magneticHeading);
    if (isValueShown(decideDialFlag(evidence)))
        bars.magneticDegrees = static_cast<double>(record->magneticHeading);
}

void readPlan(Context& context, const VisionReadings& vision, PfdReadings& bars) {
    const IProcedure* procedure = context.getCurrentProcedure();
    PfdReadings::NextFix& fix = bars.nextFix;
    const bool flown = procedure && procedure->getBearing() >= 0.0 && isValueShown(vision.trust.position);
    bars.bearingDegrees = flown ? std::optional<double>(procedure->getBearing()) : std::nullopt;
    fix.nauticalMiles = procedure ? procedure->getLength() : -1.0;
    fix.seconds = procedure ? procedure->getETE() : -1;
    fix.flag = vision.trust.position;
    fix.name = procedure ? nameOfTarget(context, *procedure) : ShortText();
}

} // namespace

VisionReadings readVision(Context& context) {
    SensorManager& sensors = *context.getSensorManager();
    VisionReadings readings;
    readAttitude(sensors, readings);
    readPosition(sensors, readings);
    const auto altitude = readValueOf<Altitude_Data>(sensors, ISensorData::Altitude);
    readings.altitudeMetres = altitude.value;
    readings.trust.altitude = altitude.flag;
    const auto heading = readValueOf<Heading_Data>(sensors, ISensorData::Heading);
    readings.headingDegrees = heading.value;
    readings.trust.heading = heading.flag;
    const TerrainManager* terrain = context.getPanelManager()->getTerrainManager();
    readings.groundMetres = terrain && terrain->isCurrentElevationKnown()
                                ? static_cast<double>(terrain->getCurrentElevation())
                                : std::numeric_limits<double>::infinity();
    return readings;
}

void readBars(Context& context, const VisionReadings& vision, PfdReadings& bars) {
    SensorManager& sensors = *context.getSensorManager();
    bars.metric = context.getPanelManager()->isMetric();
    bars.speeds = SpeedScale::of(context.getCurrentAircraft());
    readMotion(sensors, bars);
    readAltimeter(sensors, vision, bars);
    readHeadings(sensors, vision, bars);
    readAngleOfAttack(sensors, bars);
    bars.bankDegrees = {vision.hasAttitude ? calcAttitudePose(vision.attitude).rollDegrees : 0.0,
                        vision.trust.attitude};
    readPlan(context, vision, bars);
}

} // namespace skyvane
