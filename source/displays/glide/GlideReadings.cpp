#include "displays/glide/GlideReadings.h"

#include "displays/gauges/SensorReading.h"
#include "sensors/SensorManager.h"
#include "sensors/records/ScalarData.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr unsigned averagePeriod = 1000;
constexpr unsigned infoSpan = 30000, infoPeriod = 100, infoLongestPause = 2000;

int weightOf(DialFlag flag) {
    switch (flag) {
    case DialFlag::Failed:
        return 3;
    case DialFlag::Doubtful:
        return 2;
    case DialFlag::Simulated:
        return 1;
    default:
        return 0;
    }
}

GlideNumber readScalar(SensorManager& sensors, ISensorData::Type type) {
    DialEvidence evidence;
    const auto* record = readDefault<ScalarData>(sensors, type, evidence);
    evidence.finite = record && std::isfinite(record->value);
    const DialFlag flag = decideDialFlag(evidence);
    return isValueShown(flag) ? GlideNumber{true, record->value, flag} : GlideNumber{false, 0.0, flag};
}

/// Believed as far as the position that it is measured from.
GlideNumber readDistance(const GlideSources& sources) {
    if (!(sources.distanceNauticalMiles >= 0.0) || !std::isfinite(sources.distanceNauticalMiles))
        return {};
    DialEvidence evidence;
    readDefaultRecord(*sources.sensors, ISensorData::Position, evidence);
    evidence.finite = true;
    const DialFlag flag = decideDialFlag(evidence);
    return {isValueShown(flag), sources.distanceNauticalMiles, flag};
}

GlideNumber averageOf(TimedSamples& samples, const GlideNumber& number, unsigned now) {
    if (number.known)
        return {true, samples.updateAverage(number.value, now), number.flag};
    samples.clear();
    return number;
}

double gradientOf(const GlideNumber& groundSpeed, const GlideNumber& verticalSpeed) {
    return groundSpeed.known && verticalSpeed.known ? glideGradient(groundSpeed.value, verticalSpeed.value)
                                                    : noGradient;
}

void fillTable(GliderReadings& readings, const GlideSources& sources) {
    readings.isTableValid = sources.hasElevation && readings.distance.known && readings.altitude.known;
    for (int column = 0; column < GliderReadings::columns; ++column) {
        const DialFlag place = worseFlag(readings.altitude.flag, readings.distance.flag);
        readings.tableFlags[column] = worseFlag(readings.gradientFlags[column], place);
        for (int row = 0; row < GliderReadings::factors; ++row)
            readings.above[row][column] =
                readings.isTableValid
                    ? altitudeAbove(readings.gradients[column], GliderReadings::multipliers[row],
                                    readings.altitude.value, readings.distance.value, sources.elevationFeet)
                    : noAltitudeAbove;
    }
}

} // namespace

DialFlag worseFlag(DialFlag a, DialFlag b) {
    return weightOf(a) >= weightOf(b) ? a : b;
}

GliderReader::GliderReader(unsigned averageMilliseconds)
    : verticalSpeeds_(averageMilliseconds, averagePeriod), groundSpeeds_(averageMilliseconds, averagePeriod) {}

GliderReadings GliderReader::read(const GlideSources& sources, unsigned nowMilliseconds) {
    GliderReadings readings;
    readings.distance = readDistance(sources);
    readings.altitude = readScalar(*sources.sensors, ISensorData::Altitude);
    readings.verticalSpeed = readScalar(*sources.sensors, ISensorData::VerticalSpeed);
    readGradients(readings, readScalar(*sources.sensors, ISensorData::GroundSpeed), nowMilliseconds);
    readings.gradients[GliderReadings::Best] = bestGradient(sources.inverseGlideRatio);
    fillTable(readings, sources);
    return readings;
}

void GliderReader::readGradients(GliderReadings& readings, const GlideNumber& groundSpeed, unsigned now) {
    readings.averageVerticalSpeed = averageOf(verticalSpeeds_, readings.verticalSpeed, now);
    const GlideNumber averageGroundSpeed = averageOf(groundSpeeds_, groundSpeed, now);
    const DialFlag flag = worseFlag(readings.verticalSpeed.flag, groundSpeed.flag);
    readings.gradients[GliderReadings::Current] = gradientOf(groundSpeed, readings.verticalSpeed);
    readings.gradients[GliderReadings::Average] = gradientOf(averageGroundSpeed, readings.averageVerticalSpeed);
    readings.gradientFlags[GliderReadings::Current] = readings.gradientFlags[GliderReadings::Average] = flag;
}

GlideInfoReader::GlideInfoReader() : verticalSpeeds_(infoSpan, infoPeriod) {}

GlideNumber GlideInfoReader::averageVerticalSpeed(SensorManager& sensors, unsigned now) {
    const GlideNumber current = readScalar(sensors, ISensorData::VerticalSpeed);
    const bool wasAway = !verticalSpeeds_.isEmpty() && now - verticalSpeeds_.newestTime() > infoLongestPause;
    if (!current.known || wasAway)
        verticalSpeeds_.clear();
    if (!current.known)
        return current;
    verticalSpeeds_.add(current.value, now);
    return {true, verticalSpeeds_.meanOverTime(), current.flag};
}

GlideInfoReadings GlideInfoReader::read(const GlideSources& sources, unsigned nowMilliseconds) {
    GlideInfoReadings readings;
    readings.averageVerticalSpeed = averageVerticalSpeed(*sources.sensors, nowMilliseconds);
    const GlideNumber groundSpeed = readScalar(*sources.sensors, ISensorData::GroundSpeed);
    readings.ratio.flag = worseFlag(groundSpeed.flag, readings.averageVerticalSpeed.flag);
    if (groundSpeed.known && readings.averageVerticalSpeed.known)
        readings.ratio.value = glideRatio(groundSpeed.value, readings.averageVerticalSpeed.value);
    readings.ratio.known = readings.ratio.value != 0.0;

    const GlideNumber altitude = readScalar(*sources.sensors, ISensorData::Altitude);
    const GlideNumber distance = readDistance(sources);
    readings.altitude.flag = worseFlag(altitude.flag, distance.flag);
    readings.altitude.known =
        altitude.known && distance.known &&
        glideAltitude(altitude.value, distance.value, sources.inverseGlideRatio, readings.altitude.value);
    return readings;
}

} // namespace skyvane
