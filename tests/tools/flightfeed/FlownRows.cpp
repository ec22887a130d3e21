#include "tools/flightfeed/FlownRows.h"

#include "tools/flightfeed/FlownCard.h"

namespace skyvane {

std::vector<FlownRow> flyRows(const std::string& card) {
    std::vector<FlownRow> rows;
    for (const FlightState& state : fly(card, 1.0))
        rows.push_back({state.timeSeconds, state.latitudeDegrees, state.longitudeDegrees, state.altitudeMetres,
                        state.groundSpeedKnots, state.headingDegrees});
    return rows;
}

} // namespace skyvane
