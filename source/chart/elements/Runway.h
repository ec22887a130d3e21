#pragma once

#include "chart/elements/Frequency.h"
#include "chart/geodesy/ChartPosition.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// An instrument approach to a runway end.
struct Approach {
    std::string name;
    Frequency frequency;

    static constexpr size_t LeastRecordBytes = 12;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
};

/// One end of a runway: what a pilot lands over. A value counts only when its flag says that it is known.
struct RunwayEnd {
    ChartPosition threshold;
    bool isThresholdKnown = false;
    int32_t elevationFeet = 0;
    bool isElevationKnown = false;
    float slopeDegrees = 0.0f; ///< Of the glide path.
    bool isSlopeKnown = false;
    std::string name; ///< Empty: derived from the direction.
    uint32_t trafficPattern = 2;
    std::vector<Approach> approaches;
};

/// A runway of an airport, with both its ends.
struct Runway {
    /// Stored, as are the patterns. Any other value counts as unknown.
    enum Surface : uint32_t { Solid = 0, Cracked = 1, Grass = 2, Water = 3, UnknownSurface = 4 };
    enum TrafficPattern : uint32_t { RightPattern = 0, LeftPattern = 1, UnknownPattern = 2 };

    /// The end's name, or the label of its direction.
    std::string getEndLabel(size_t end) const;
    /// 0 unknown, 1 low, 2 medium, 3 or more good.
    int getAccuracy() const { return accuracy; }

    uint32_t surface = UnknownSurface;
    uint32_t lengthFeet = 0;       ///< Below 1 is unknown.
    uint32_t widthFeet = 0;        ///< Below 1 is unknown.
    uint32_t directionDegrees = 0; ///< Of landing on the first end.
    bool hasLights = false;
    std::array<RunwayEnd, 2> ends;
    uint8_t accuracy = 0;

    static constexpr size_t LeastRecordBytes = 96;
    template <class Self, class Form>
    static void record(Self& self, Form& form);
    /// In a section of its own.
    template <class Self, class Form>
    static void document(Self& self, Form& form);
};

} // namespace skyvane
