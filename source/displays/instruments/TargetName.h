#pragma once

#include "displays/gauges/ShortText.h"

namespace skyvane {

class Context;
class IProcedure;
struct ProcedureLocation;

/// The ident of the chart element that a procedure leads to; empty for a place without one. Main thread only.
ShortText nameOfTarget(Context& context, const IProcedure& procedure);
ShortText nameOfTarget(Context& context, const ProcedureLocation& location);

} // namespace skyvane
