#include "flightfeed/command/FlightRecorder.h"

#include "flightfeed/send/FlightRecords.h"
#include "sensors/log/LogIndex.h"
#include "sensors/log/LogWriter.h"

#include <cmath>

namespace skyvane {

bool recordFlight(IFlightSource& source, const std::string& path, double ratePerSecond, double durationSeconds,
                  TruthPrinter* printer) {
    LogWriter log(path);
    FlightRecords records;
    long count = 0;
    do {
        const FlightState& state = source.state();
        const auto timeMs = static_cast<unsigned>(std::llround(state.timeSeconds * 1000.0));
        for (ISensorData* record : records.take(state)) {
            int length = 0;
            const void* form = record->serialize(&length);
            log.add(timeMs, record->getType(), form, static_cast<uint32_t>(length));
        }
        log.flush();
        if (printer)
            printer->print(state);
        ++count;
    } while (!log.fail() && (durationSeconds <= 0.0 || static_cast<double>(count) / ratePerSecond < durationSeconds) &&
             source.advance(1.0 / ratePerSecond));
    log.close();
    return !log.fail() && !calculateLogIndex(path).samples.empty();
}

} // namespace skyvane
