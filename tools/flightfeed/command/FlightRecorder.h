#pragma once

#include "flightfeed/flight/IFlightSource.h"
#include "flightfeed/send/TruthPrinter.h"

#include <string>

namespace skyvane {

/// Writes a flight into a log of the program's own format, with its index, as fast as it goes: from where the source
/// stands to its end or for so many seconds. The printer may be null. False when the file can't be written.
bool recordFlight(IFlightSource& source, const std::string& path, double ratePerSecond, double durationSeconds,
                  TruthPrinter* printer);

} // namespace skyvane
