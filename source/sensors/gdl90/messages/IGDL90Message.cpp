#include "sensors/gdl90/messages/IGDL90Message.h"

namespace skyvane {

const char* IGDL90Message::type2Name(int type) {
    static constexpr const char* names[TypeCount] = {
        "HEARTBEAT", "UPLINK",           "OWNSHIP",      "OWNSHIP_GEO_ALT", "TRAFFIC",        "FFAHRS",
        "FFID",      "STRATUX_HEARBEAT", "STRATUX_AHRS", "UAT_UPLINK",      "TALOS_PRESSURE", "TALOS_TEMPERATURE",
        "TALOS_GPS", "TALOS_GYRO",       "TALOS_ACC",    "TALOS_AOA",       "LEVIL_AOA",      "LEVIL_GPS_STATUS",
        "UNKNOWN"};
    return names[type >= 0 && type < TypeCount ? type : UNKNOWN];
}

} // namespace skyvane
