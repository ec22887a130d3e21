#pragma once

#include "flightfeed/send/IProtocolSender.h"

#include <memory>
#include <string>

namespace skyvane {

/// A protocol as the command line names it.
struct Protocol {
    const char* name;
    int port; ///< where receivers listen, or for a stream: where they connect to
    std::unique_ptr<IProtocolSender> (*make)();
    bool isStream = false; ///< Bytes one after the other in place of datagrams.
};

/// Null when there is none of that name.
const Protocol* findProtocol(const std::string& name);

} // namespace skyvane
