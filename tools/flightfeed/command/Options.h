#pragma once

#include "flightfeed/send/ProtocolList.h"

#include <string>
#include <vector>

namespace skyvane {

/// What the command line asks for.
struct Options {
    const Protocol* protocol = findProtocol("flightgear");
    std::string host = "127.0.0.1";
    int port = 0;    ///< 0: the protocol's own
    std::string pty; ///< the name of a pseudo-terminal in place of host and port
    double ratePerSecond = 30.0;
    double speed = 1.0;           ///< flight seconds per second; 0: as fast as it goes
    double durationSeconds = 0.0; ///< of the flight; 0: to its end
    double fromSeconds = 0.0;     ///< flown without sending
    std::string card;             ///< a file, empty for the built-in one
    std::string replay;           ///< a recording
    std::string plan;             ///< a document of flight plans, of which a card flies the first
    std::string charts;           ///< the folder of the charts that the plan was made over
    std::string record;           ///< a log to write in place of sending
    bool hold = false;
    std::string state;
    bool print = false;
    bool loop = false;
    bool help = false;
};

/// False, with the words in `error`, when an argument is unknown or its value doesn't fit.
bool parseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error);

} // namespace skyvane
