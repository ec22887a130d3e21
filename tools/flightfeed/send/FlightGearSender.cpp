#include "flightfeed/send/FlightGearSender.h"

#include "core/bytes/ByteWriter.h"
#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"

namespace skyvane {

void FlightGearSender::send(const FlightState& state, IDatagramSink& sink) {
    uint8_t buffer[DATAGRAM_BYTES];
    ByteWriter out(buffer, sizeof(buffer));
    for (const double angle : {state.pitchDegrees, state.headingDegrees, state.rollDegrees})
        out.big<double>(toRadians(angle));
    for (const double rate :
         {state.pitchRateRadiansPerSecond, state.yawRateRadiansPerSecond, state.rollRateRadiansPerSecond})
        out.big<double>(rate);
    for (const double force : {-state.specificForceForward, state.specificForceRight, -state.specificForceDown})
        out.big<double>(force);
    for (const double value :
         {state.groundTrackDegrees, state.groundSpeedKnots, state.altitudeMetres, state.latitudeDegrees,
          state.longitudeDegrees, state.verticalSpeedMetresPerSecond, state.temperatureCelsius})
        out.big<double>(value);
    const CalendarTime time = calendarTime(state.utcSeconds);
    for (const int value : {time.hour, time.minute, time.second, time.day, time.month, time.year})
        out.big<int32_t>(value);
    out.big<double>(state.pressureMillibars);
    out.big<double>(state.indicatedAirspeedKnots);
    sink.send(buffer, out.size());
}

} // namespace skyvane
