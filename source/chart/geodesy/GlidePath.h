#pragma once

namespace skyvane {

/// The glide path frequency that is paired with a localizer's, both in hertz, by the forty channels of ICAO Annex 10.
/// Fractions of a kilohertz don't count; 0 for what is no localizer frequency.
unsigned long getGlideSlopeFrequency(unsigned long localizerHertz);

} // namespace skyvane
