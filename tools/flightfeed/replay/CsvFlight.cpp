#include "flightfeed/replay/CsvFlight.h"

#include "core/text/StrictNumber.h"
#include "flightfeed/flight/StandardAtmosphere.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace skyvane {

namespace {

enum Column {
    TIME,
    LATITUDE,
    LONGITUDE,
    ALTITUDE_FEET,
    ROLL,
    PITCH,
    HEADING,
    ROLL_RATE,
    PITCH_RATE,
    YAW_RATE,
    FORCE_FORWARD,
    FORCE_RIGHT,
    FORCE_DOWN,
    NORTH_FEET,
    EAST_FEET,
    DOWN_FEET,
    AIRSPEED
};

const char* const NAMES[CsvFlight::COLUMNS] = {"sim-time-sec",
                                               "lat-geod-deg",
                                               "long-gc-deg",
                                               "h-sl-ft",
                                               "phi-rad",
                                               "theta-rad",
                                               "psi-rad",
                                               "p-rad_sec",
                                               "q-rad_sec",
                                               "r-rad_sec",
                                               "a-pilot-x-ft_sec2",
                                               "a-pilot-y-ft_sec2",
                                               "a-pilot-z-ft_sec2",
                                               "v-north-fps",
                                               "v-east-fps",
                                               "v-down-fps",
                                               "vc-kts"};

std::vector<std::string> cells(std::string line) {
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    std::vector<std::string> out;
    std::istringstream in(line);
    for (std::string cell; std::getline(in, cell, ',');)
        out.push_back(cell);
    return out;
}

bool findColumns(const std::string& header, std::array<size_t, CsvFlight::COLUMNS>& places, std::string& error) {
    std::vector<std::string> names = cells(header);
    for (std::string& name : names)
        name.erase(0, name.rfind('/') + 1);
    for (size_t i = 0; i < CsvFlight::COLUMNS; ++i) {
        const auto found = std::find(names.begin(), names.end(), NAMES[i]);
        if (found == names.end()) {
            error = std::string("line 1: no column \"") + NAMES[i] + "\"";
            return false;
        }
        places[i] = static_cast<size_t>(found - names.begin());
    }
    return true;
}

bool readRow(const std::string& line, const std::array<size_t, CsvFlight::COLUMNS>& places, CsvFlight::Row& row) {
    const std::vector<std::string> texts = cells(line);
    for (size_t i = 0; i < CsvFlight::COLUMNS; ++i)
        if (places[i] >= texts.size() || !parseStrictNumber(texts[places[i]], row[i]))
            return false;
    return std::abs(row[LATITUDE]) <= 90.0 && std::abs(row[LONGITUDE]) <= 360.0;
}

double blendAngle(double a, double b, double part) {
    return a + part * wrapRadians(b - a);
}

} // namespace

std::unique_ptr<CsvFlight> CsvFlight::read(const std::string& text, std::string& error) {
    std::istringstream in(text);
    std::string line;
    std::getline(in, line);
    std::array<size_t, COLUMNS> places{};
    if (!findColumns(line, places, error))
        return nullptr;
    std::vector<Row> rows;
    for (int number = 2; std::getline(in, line); ++number) {
        if (line.empty() || line == "\r")
            continue;
        Row row{};
        if (!readRow(line, places, row)) {
            error = "line " + std::to_string(number) + ": not a row of numbers that fits the header";
            return nullptr;
        }
        if (!rows.empty() && row[TIME] <= rows.back()[TIME]) {
            error = "line " + std::to_string(number) + ": time doesn't grow";
            return nullptr;
        }
        rows.push_back(row);
    }
    if (rows.size() < 2) {
        error = "fewer than two rows";
        return nullptr;
    }
    return std::unique_ptr<CsvFlight>(new CsvFlight(std::move(rows)));
}

CsvFlight::CsvFlight(std::vector<Row> rows) : rows_(std::move(rows)) {
    restart();
}

void CsvFlight::restart() {
    row_ = 0;
    state_ = FlightState();
    publish();
}

bool CsvFlight::advance(double seconds) {
    const double before = state_.timeSeconds;
    state_.timeSeconds = std::min(before + seconds, lengthSeconds());
    state_.utcSeconds += state_.timeSeconds - before;
    const double time = rows_.front()[TIME] + state_.timeSeconds;
    while (row_ + 2 < rows_.size() && rows_[row_ + 1][TIME] <= time)
        ++row_;
    publish();
    return before + seconds <= lengthSeconds();
}

void CsvFlight::publish() {
    const Row& a = rows_[row_];
    const Row& b = rows_[row_ + 1];
    const double part = (rows_.front()[TIME] + state_.timeSeconds - a[TIME]) / (b[TIME] - a[TIME]);
    const auto blend = [&](Column column) { return a[column] + part * (b[column] - a[column]); };
    const double roll = blendAngle(a[ROLL], b[ROLL], part), pitch = blend(PITCH);
    const double longitudeStep = wrapDegrees180(b[LONGITUDE] - a[LONGITUDE]);
    FlightState& s = state_;
    s.latitudeDegrees = blend(LATITUDE);
    s.longitudeDegrees = wrapDegrees180(a[LONGITUDE] + part * longitudeStep);
    s.altitudeMetres = blend(ALTITUDE_FEET) * METRES_PER_FOOT;
    s.rollDegrees = wrapDegrees180(toDegrees(roll));
    s.pitchDegrees = toDegrees(pitch);
    s.headingDegrees = wrapDegrees360(toDegrees(blendAngle(a[HEADING], b[HEADING], part)));
    s.rollRateRadiansPerSecond = blend(ROLL_RATE);
    s.pitchRateRadiansPerSecond = blend(PITCH_RATE);
    s.yawRateRadiansPerSecond = blend(YAW_RATE);
    const double turn = s.pitchRateRadiansPerSecond * std::sin(roll) + s.yawRateRadiansPerSecond * std::cos(roll);
    s.headingRateDegreesPerSecond = toDegrees(turn / std::max(0.01, std::cos(pitch)));
    s.specificForceForward = blend(FORCE_FORWARD) * METRES_PER_FOOT;
    s.specificForceRight = blend(FORCE_RIGHT) * METRES_PER_FOOT;
    s.specificForceDown = blend(FORCE_DOWN) * METRES_PER_FOOT;
    s.velocityNorthMetresPerSecond = blend(NORTH_FEET) * METRES_PER_FOOT;
    s.velocityEastMetresPerSecond = blend(EAST_FEET) * METRES_PER_FOOT;
    s.verticalSpeedMetresPerSecond = -blend(DOWN_FEET) * METRES_PER_FOOT;
    const double ground = std::hypot(s.velocityNorthMetresPerSecond, s.velocityEastMetresPerSecond);
    constexpr double standingMetresPerSecond = 0.1;
    s.groundSpeedKnots = ground / METRES_PER_SECOND_PER_KNOT;
    s.groundTrackDegrees =
        ground < standingMetresPerSecond
            ? s.headingDegrees
            : wrapDegrees360(toDegrees(std::atan2(s.velocityEastMetresPerSecond, s.velocityNorthMetresPerSecond)));
    s.indicatedAirspeedKnots = blend(AIRSPEED);
    s.trueAirspeedKnots = s.indicatedAirspeedKnots / std::sqrt(standardDensityRatio(s.altitudeMetres));
    s.pressureMillibars = standardPressureMillibars(s.altitudeMetres);
    s.temperatureCelsius = standardTemperatureCelsius(s.altitudeMetres);
}

} // namespace skyvane
