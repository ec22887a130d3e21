#pragma once

#include <string>

namespace skyvane {

class MessageBytes;

/// What a GDL 90 frame says. The fields are as they were sent, scaled to the units told at each of them; nothing but
/// their form has been checked. docs/formats/gdl90.md has the layouts.
class IGDL90Message {
public:
    enum Type : int {
        HEARTBEAT,
        UPLINK, ///< No message has it.
        OWNSHIP,
        OWNSHIP_GEO_ALT,
        TRAFFIC,
        FFAHRS,
        FFID,
        STRATUX_HEARBEAT,
        STRATUX_AHRS,
        UAT_UPLINK,
        TALOS_PRESSURE,
        TALOS_TEMPERATURE,
        TALOS_GPS,
        TALOS_GYRO,
        TALOS_ACC,
        TALOS_AOA,
        LEVIL_AOA,
        LEVIL_GPS_STATUS,
        UNKNOWN
    };
    static constexpr int TypeCount = 19;

    /// The name of a type's number; "UNKNOWN" for a number that is none.
    static const char* type2Name(int type);

    /// Takes the message over, from its id up to its check sequence. Every field is set anew; one that lies behind the
    /// end reads as zero.
    virtual void readFromRaw(const MessageBytes& raw) = 0;
    virtual ~IGDL90Message() = default;
    virtual Type getType() const = 0;
    /// The fields as a text, for diagnosis.
    virtual std::string print() const = 0;
};

} // namespace skyvane
