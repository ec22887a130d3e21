#pragma once

#include "chart/elements/AirportElement.h"

namespace skyvane {

/// Makes approaches of the frequencies of localizers that name a runway end of the airport ("ILS/DME RWY 27",
/// "ILS 09"); they are no radio services any more then. Others stay what they are.
void joinApproaches(AirportElement& airport);

} // namespace skyvane
