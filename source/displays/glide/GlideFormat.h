#pragma once

#include "displays/gauges/ShortText.h"
#include "displays/glide/GlideReadings.h"

#include <optional>
#include <string_view>

namespace skyvane {

// The texts of the glide computers. What isn't known is "n/A". Nothing is allocated, but by formatRatio().

/// The units of a glider panel; the words are those of its options.
enum class GlideUnits {
    Nautical, ///< "NM|feet|feet/min"
    Metric,   ///< "km|m|m/s"
};

/// Nautical for what it doesn't know.
GlideUnits parseGlideUnits(std::string_view text);

/// A glide ratio as a pilot enters it: "40", "9,35" or "1:40"; none for what is no number from 0 to 999.
std::optional<double> parseInverseGlideRatio(std::wstring_view text);
/// The same back, as it stands in the edit box: "0.0", "9.35".
std::wstring formatRatio(double inverseGlideRatio);

// Of a glider panel. `gap`, a blank or a line feed, stands between number and unit, or before the destination's name.
ShortText formatGlideDistance(const GlideNumber& nauticalMiles, GlideUnits units, const wchar_t* gap);
ShortText formatGlideAltitude(const GlideNumber& metres, GlideUnits units, const wchar_t* gap);
ShortText formatGlideVerticalSpeed(const GlideNumber& metresPerSecond, GlideUnits units, const wchar_t* gap);
/// Of an aircraft; negative is none.
ShortText formatGlideSpeed(int knots, GlideUnits units, const wchar_t* gap);
/// "1 : 12", "-1 : 12" in a climb; none for level flight and without a gradient.
ShortText formatGradient(double gradient);
/// Whole feet or metres, without the unit; none unless valid.
ShortText calcAltAboveString(bool valid, GlideUnits units, double metres);
/// "Altitude above destination Northcape (feet)"; "-" in place of an empty name.
ShortText formatTableTitle(const ShortText& name, GlideUnits units, const wchar_t* gap);

// Of the glide information; `gap` as above.
/// "1:12", "1:-12" in a climb.
ShortText formatGlideRatio(const GlideNumber& ratio);
/// "+1200 ft MSL"
ShortText formatArrivalAltitude(const GlideNumber& metres, bool metric, const wchar_t* gap);
/// "-250 ft/min"
ShortText formatAverageVerticalSpeed(const GlideNumber& metresPerSecond, bool metric, const wchar_t* gap);

} // namespace skyvane
