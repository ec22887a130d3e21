#pragma once

namespace skyvane {

/// What a simulator can mean by a value. Everything outside, infinities and NaN included, is a fault on the way and
/// never reaches a record.
struct PlausibleRange {
    double lowest;
    double highest;

    /// False for a NaN.
    constexpr bool holds(double value) const { return value >= lowest && value <= highest; }
};

/// Generous: no flight reaches the ends, and what lies within does no harm further on.
struct Plausible {
    static constexpr PlausibleRange latitudeDegrees{-90.0, 90.0};
    static constexpr PlausibleRange longitudeDegrees{-180.0, 360.0};
    static constexpr PlausibleRange altitudeMetres{-10000.0, 1000000.0};
    static constexpr PlausibleRange angleDegrees{-3600.0, 3600.0};
    static constexpr PlausibleRange speedKnots{-10000.0, 10000.0};
    static constexpr PlausibleRange climbMetresPerSecond{-5000.0, 5000.0};
    static constexpr PlausibleRange metresPerSecondSquared{-1000.0, 1000.0};
    static constexpr PlausibleRange yawRateDegreesPerSecond{-1000.0, 1000.0};
    static constexpr PlausibleRange pressureMillibars{0.0, 3000.0};
    static constexpr PlausibleRange temperatureCelsius{-273.15, 1000.0};
    static constexpr PlausibleRange deviationDots{-100.0, 100.0};
};

} // namespace skyvane
