#pragma once

#include "flightfeed/card/FlightCard.h"
#include "flightfeed/flight/Pilot.h"

#include <memory>

namespace skyvane {

/// One step of a card, being flown.
class IManoeuvre {
public:
    virtual ~IManoeuvre() = default;
    /// Once, before the first fly().
    virtual void begin(Pilot& pilot) = 0;
    /// Sets the controls for the next `seconds`; true when the manoeuvre is over.
    virtual bool fly(Pilot& pilot, double seconds) = 0;
};

/// The manoeuvre of a step. The card outlives it.
std::unique_ptr<IManoeuvre> makeManoeuvre(const FlightCard& card, const CardStep& step);

/// Along the straight line to a way point, or along a flight plan; null for other steps.
std::unique_ptr<IManoeuvre> makeRouteManoeuvre(const FlightCard& card, const CardStep& step);

/// Those that begin or end on the ground; null for other steps.
std::unique_ptr<IManoeuvre> makeRunwayManoeuvre(const FlightCard& card, const CardStep& step);

} // namespace skyvane
