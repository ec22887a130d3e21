#include "core/time/Time.h"
#include "sensors/nmea/NMEA_Parser.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

using namespace skyvane;

namespace {

struct Sink : IAdditionalParser {
    bool parse(std::vector<std::string>* tokens, bool checksumOk) override { return !tokens->empty() && checksumOk; }
};

} // namespace

/// Any bytes as a receiver's stream; then each of its lines with the checksum made right, so that the fields are
/// reached. What the record holds is a place on the earth, a time of a day and finite numbers.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static ManualClock clock;
    setClock(&clock);
    Sink others;
    NMEA_Parser parser(length > 0 ? static_cast<NMEA_Parser::NMEA_VERSION>(bytes[0] % 4) : NMEA_Parser::GpAndGn, 2000);
    parser.setAdditionalParser(&others);
    unsigned checksum = 0;
    for (size_t i = 0; i < length; ++i) {
        clock.advance(0.01);
        const char byte = static_cast<char>(bytes[i]);
        checksum = byte == '$' || byte == '\n' ? 0 : checksum ^ bytes[i];
        parser.doStep(byte);
        if (i + 1 < length && bytes[i + 1] == '\n') {
            char end[4];
            std::snprintf(end, sizeof end, "*%02X", checksum & 0xff);
            for (const char* c = end; *c; ++c)
                parser.doStep(*c);
        }
    }
    const GPS_Data gps = parser.getGPSData();
    const double values[] = {gps.latitude, gps.longitude, gps.altitude, gps.groundSpeed, gps.groundTrack, gps.hdop};
    for (const double value : values)
        if (!std::isfinite(value))
            std::abort();
    if (std::fabs(gps.latitude) > 90.0 || std::fabs(gps.longitude) > 180.0 || gps.timeStamp > 86400999)
        std::abort();
    return 0;
}
