#include "flightfeed/send/GDL90Sender.h"

#include "chart/geodesy/Geoid.h"
#include "flightfeed/flight/CalendarTime.h"

#include <cmath>
#include <cstdio>

namespace skyvane {

namespace {

constexpr long UPLINK_PERIOD_SECONDS = 5;

} // namespace

void GDL90Sender::send(const FlightState& state, IDatagramSink& sink) {
    const auto second = static_cast<long>(std::floor(state.timeSeconds + 1e-6));
    if (second != lastSecond_) {
        lastSecond_ = second;
        addEverySecond(state);
        flush(sink);
        if (second % UPLINK_PERIOD_SECONDS == 0)
            addUplink(state);
        flush(sink);
    }
    addExtension(state);
    flush(sink);
}

void GDL90Sender::flush(IDatagramSink& sink) {
    if (!encoder_.frames().empty())
        sink.send(encoder_.frames().data(), encoder_.frames().size());
    encoder_.clear();
}

void GDL90Sender::addEverySecond(const FlightState& state) {
    const bool tellsItself = maker_ == Maker::Stratux || maker_ == Maker::ForeFlight;
    encoder_.heartbeat(state);
    if (tellsItself)
        encoder_.foreFlightId(true);
    encoder_.ownShip(state);
    encoder_.geometricAltitude(
        tellsItself ? state.altitudeMetres
                    : calcWGS84EllipsoidFromMSL(state.altitudeMetres, state.longitudeDegrees, state.latitudeDegrees));
    for (int i = 0; i < state.trafficCount; ++i)
        encoder_.traffic(state.traffic[static_cast<size_t>(i)], i);
}

void GDL90Sender::addUplink(const FlightState& state) {
    const CalendarTime time = calendarTime(state.utcSeconds);
    char report[64];
    std::snprintf(report, sizeof(report), "METAR SKYV %02d%02d%02dZ 24008KT 9999 FEW040 15/08 Q1013 ", time.day,
                  time.hour, time.minute);
    encoder_.uplink(state, report);
}

void GDL90Sender::addExtension(const FlightState& state) {
    switch (maker_) {
    case Maker::Stratux:
        encoder_.stratuxHeartbeat();
        encoder_.stratuxAhrs(state);
        break;
    case Maker::ForeFlight:
        encoder_.foreFlightAhrs(state);
        break;
    case Maker::Levil:
        encoder_.stratuxAhrs(state);
        encoder_.levilAngleOfAttack(state);
        encoder_.levilGpsStatus();
        break;
    case Maker::Talos:
        encoder_.foreFlightAhrs(state);
        encoder_.talos(state);
        break;
    }
}

} // namespace skyvane
