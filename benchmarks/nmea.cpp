// Speed of the receiver's parser over that of a plain pass that adds up checksums and cuts at commas.
#include "Bench.h"

#include "sensors/nmea/NMEA_Parser.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

namespace {

void append(std::string& stream, const std::string& body) {
    unsigned checksum = 0;
    for (const char c : body)
        checksum ^= static_cast<unsigned char>(c);
    char end[8];
    std::snprintf(end, sizeof end, "*%02X\r\n", checksum);
    stream += "$" + body + end;
}

/// What a receiver of two systems says in so many seconds.
std::string receiverStream(int seconds) {
    std::string stream;
    for (int n = 0; n < seconds; ++n) {
        char time[16], place[64];
        std::snprintf(time, sizeof time, "%02d%02d%02d.00", n / 3600 % 24, n / 60 % 60, n % 60);
        std::snprintf(place, sizeof place, "42%02d.%05d,N,028%02d.%05d,W", n % 60, n % 100000, n % 60, n * 7 % 100000);
        append(stream, std::string("GNRMC,") + time + ",A," + place + ",98.429,071.3,010626,,,A");
        append(stream, "GNVTG,071.3,T,,M,98.429,N,182.290,K,A");
        append(stream, std::string("GNGGA,") + time + "," + place + ",1,12,0.91,1147.2,M,-21.3,M,,");
        append(stream, "GNGSA,A,3,01,11,31,14,22,32,04,25,03,,,,1.56,0.91,1.27");
        append(stream, "GNGSA,A,3,67,83,76,82,68,,,,,,,,1.56,0.91,1.27");
        for (const char* part : {"1", "2", "3"})
            append(stream, std::string("GPGSV,3,") + part + ",12,01,53,280,36,03,29,301,24,04,55,223,37,08,38,166,16");
        append(stream, std::string("GNGLL,") + place + "," + time + ",A,A");
    }
    return stream;
}

/// How many sentences are whole.
size_t plainPass(const std::string& stream, std::vector<std::string_view>& tokens) {
    size_t good = 0, start = 0;
    unsigned checksum = 0;
    for (size_t i = 0; i < stream.size(); ++i) {
        const char byte = stream[i];
        if (byte == '$') {
            tokens.clear();
            checksum = 0;
            start = i + 1;
            continue;
        }
        if (byte == ',' || byte == '*') {
            tokens.push_back(std::string_view(stream).substr(start, i - start));
            start = i + 1;
        }
        if (byte != '*') {
            checksum ^= static_cast<unsigned char>(byte);
            continue;
        }
        good += std::strtoul(stream.c_str() + i + 1, nullptr, 16) == checksum && !tokens.empty();
        i = stream.find('\n', i);
    }
    return good;
}

double parseSpeed(bool smoke) {
    const std::string stream = receiverStream(smoke ? 20 : 3600);
    std::vector<std::string_view> tokens;
    size_t plain = 0, taken = 0;
    const double ratio = ratioOfMedians(
        smoke ? 1 : 9, [&] { return secondsOf([&] { plain += plainPass(stream, tokens); }); },
        [&] {
            NMEA_Parser parser(NMEA_Parser::GpAndGn, 2000);
            return secondsOf([&] {
                for (const char byte : stream)
                    taken += parser.doStep(byte) ? 1 : 0;
            });
        });
    return plain > taken && taken > 0 ? ratio : std::nan("");
}

} // namespace

std::vector<Bench> nmeaBenches() {
    return {{"nmea.parse", Bench::Bound::AtLeast, 0.5, parseSpeed}};
}

} // namespace skyvane
