#pragma once

#include "flightfeed/send/IProtocolSender.h"

#include <memory>
#include <string>

namespace skyvane {

/// A protocol as the command line names it.
struct Protocol {
    const char* name;
    int port; ///< where receivers listen
    std::unique_ptr<IProtocolSender> (*make)();
};

/// Null when there is none of that name.
const Protocol* findProtocol(const std::string& name);

} // namespace skyvane
