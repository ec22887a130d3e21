#pragma once

#include "flightfeed/flight/FlightState.h"

#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// The messages of a GDL 90 receiver and of the makers' extensions as frames; docs/formats/gdl90.md has the layouts.
/// Each call appends a frame to those before.
class GDL90Encoder {
public:
    static constexpr uint32_t FIRST_TRAFFIC_ADDRESS = 0xA00001;

    const std::vector<uint8_t>& frames() const { return frames_; }
    void clear() { frames_.clear(); }

    void heartbeat(const FlightState& state);
    void ownShip(const FlightState& state);
    /// Metres, above whatever the device says.
    void geometricAltitude(double altitudeMetres);
    void traffic(const TrafficState& target, int number);
    /// A text for the pilot from a ground station at the aircraft's place; at most 500 letters count.
    void uplink(const FlightState& state, const std::string& text);

    void foreFlightId(bool isMeanSeaLevel);
    void foreFlightAhrs(const FlightState& state);
    void stratuxHeartbeat();
    void stratuxAhrs(const FlightState& state);
    void levilAngleOfAttack(const FlightState& state);
    void levilGpsStatus();
    /// All six messages of a Talos device.
    void talos(const FlightState& state);

private:
    void talosMessage(uint8_t id, const FlightState& state, const std::vector<float>& values);
    void talosGps(const FlightState& state);
    void append(const std::vector<uint8_t>& message);

    std::vector<uint8_t> frames_;
};

} // namespace skyvane
