#pragma once

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace skyvane {

/// A sentence with its frame and its right checksum.
inline std::string nmea(const std::string& body) {
    unsigned checksum = 0;
    for (const char c : body)
        checksum ^= static_cast<unsigned char>(c);
    char end[8];
    std::snprintf(end, sizeof end, "*%02X\r\n", checksum);
    return "$" + body + end;
}

/// A receiver's log from the data folder; empty when that isn't there.
inline std::string receiverLog(const std::string& name) {
    const char* folder = std::getenv("SKYVANE_DATA");
    std::ifstream file(std::string(folder ? folder : "/nowhere") + "/nmea/" + name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

} // namespace skyvane
