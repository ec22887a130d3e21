#pragma once

namespace skyvane {

class Context;

/// Opens the sensor setup screen on data/config.ini, and comes back when the pilot is done. After "Ok" the document is
/// saved and the sensors are loaded from it anew; where it can't be saved, a box tells why, and the sensors stay.
/// Main thread only, between the sensors' updates.
void setUpSensors(Context& context);

} // namespace skyvane
