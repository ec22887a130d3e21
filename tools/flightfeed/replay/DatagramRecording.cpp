#include "flightfeed/replay/DatagramRecording.h"

#include "core/bytes/ByteReader.h"
#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"
#include "flightfeed/send/FlightGearSender.h"

#include <cmath>

namespace skyvane {

bool DatagramRecording::read(std::string bytes, std::string& error) {
    bytes_ = std::move(bytes);
    const bool whole = !bytes_.empty() && bytes_.size() % RECORD_BYTES == 0;
    if (!whole)
        error = "not a whole number of records of " + std::to_string(RECORD_BYTES) + " bytes";
    bool good = whole;
    for (size_t i = 0; good && i < count(); ++i) {
        good = std::isfinite(arrival(i)) && (i == 0 || arrival(i) >= arrival(i - 1));
        if (!good)
            error = "record " + std::to_string(i) + ": its time doesn't follow the one before";
    }
    if (!good)
        bytes_.clear();
    return good;
}

double DatagramRecording::arrival(size_t index) const {
    return ByteReader(bytes_.data() + index * RECORD_BYTES, sizeof(double)).little<double>();
}

const uint8_t* DatagramRecording::datagram(size_t index) const {
    return reinterpret_cast<const uint8_t*>(bytes_.data()) + index * RECORD_BYTES + sizeof(double);
}

FlightState readFlightGearDatagram(const uint8_t* bytes) {
    ByteReader in(bytes, FlightGearSender::DATAGRAM_BYTES);
    FlightState s;
    s.pitchDegrees = toDegrees(in.big<double>());
    s.headingDegrees = wrapDegrees360(toDegrees(in.big<double>()));
    s.rollDegrees = toDegrees(in.big<double>());
    s.pitchRateRadiansPerSecond = in.big<double>();
    s.yawRateRadiansPerSecond = in.big<double>();
    s.rollRateRadiansPerSecond = in.big<double>();
    s.specificForceForward = -in.big<double>();
    s.specificForceRight = in.big<double>();
    s.specificForceDown = -in.big<double>();
    s.groundTrackDegrees = in.big<double>();
    s.groundSpeedKnots = in.big<double>();
    s.altitudeMetres = in.big<double>();
    s.latitudeDegrees = in.big<double>();
    s.longitudeDegrees = in.big<double>();
    s.verticalSpeedMetresPerSecond = in.big<double>();
    s.temperatureCelsius = in.big<double>();
    CalendarTime time;
    for (int* value : {&time.hour, &time.minute, &time.second, &time.day, &time.month, &time.year})
        *value = in.big<int32_t>();
    s.utcSeconds = utcSeconds(time);
    s.pressureMillibars = in.big<double>();
    s.indicatedAirspeedKnots = in.big<double>();
    return s;
}

} // namespace skyvane
