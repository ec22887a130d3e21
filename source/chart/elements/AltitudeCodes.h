#pragma once

#include <cstdint>

namespace skyvane {

// Altitudes as the static bytes hold them: -500 to 9000 metres in equal steps, what lies outside at the ends.

/// 0 to 4095, steps of about 2.3 metres.
uint16_t encode12BitAltitude(double metres);
/// The middle of the step, from the low 12 bits.
double decode12BitAltitude(uint16_t code);
/// 0 to 65535, steps of about 0.15 metres.
uint16_t encode16BitAltitude(double metres);

/// Feet in whole metres, or as they are.
int displayedAltitude(int32_t feet, bool metric);

} // namespace skyvane
