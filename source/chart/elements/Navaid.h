#pragma once

#include "chart/elements/ChartElement.h"

namespace skyvane {

/// For whom a navaid or fix is charted.
struct AirwayUse {
    bool highAltitude = false;
    bool lowAltitude = false;
    bool byAirways = false;

    void add(const AirwayUse& other) {
        highAltitude = highAltitude || other.highAltitude;
        lowAltitude = lowAltitude || other.lowAltitude;
        byAirways = byAirways || other.byAirways;
    }
    /// Bits 0 to 2 of the second static byte.
    int bits() const { return (highAltitude ? 1 : 0) | (lowAltitude ? 2 : 0) | (byAirways ? 4 : 0); }

    template <class Self, class Form>
    static void record(Self& self, Form& form) {
        form.flag(self.highAltitude);
        form.flag(self.lowAltitude);
        form.flag(self.byAirways);
    }
    template <class Self, class Form>
    static void document(Self& self, Form& form) {
        form.flag("highAltUsage", self.highAltitude);
        form.flag("lowAltUsage", self.lowAltitude);
        form.flag("usedByAirways", self.byAirways);
    }
};

/// The value below which a magnetic variation counts as unknown, and the one that stands for that.
constexpr float UnknownVariationBelow = -1000.0f;
constexpr float UnknownVariation = -2000.0f;

/// Records of two sources are the same navaid or fix when ident and kind agree and they stand closer than this.
constexpr double SameNavaidMetres = 3000.0;

} // namespace skyvane
