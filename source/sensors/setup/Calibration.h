#pragma once

#include <string>

namespace skyvane {

class Context;

/// Lets every running sensor that can calibrate itself do so; a box tells when none can.
void calibrateSensors(Context& context);

/// The label of the button for that: how a sensor wants it to be called, or "Calib.".
std::wstring calibrationLabel(Context& context);

} // namespace skyvane
