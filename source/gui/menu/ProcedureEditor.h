#pragma once

namespace skyvane {

class Context;

/// Lets the pilot change the values of the current procedure, on a screen of its own: altitude, speed, tolerances and
/// what else its kind has. Comes back when he is done; the paths are made anew after "Ok". Main thread only.
void editCurrentProcedure(Context& context);

} // namespace skyvane
