#pragma once

namespace skyvane {

/// What a pilot chooses for an approach, and how the values hang together: the final's length and the altitude where it
/// begins make the rate of descent, and a longer final begins higher.
class ApproachValues {
public:
    static constexpr int UsualRate = 500; ///< feet per nautical mile

    /// For a runway of an airport that lies at an elevation in feet.
    void setElevation(int feet);
    /// A final of a length in nautical miles, at the usual rate.
    void setUsual(int lengthMiles);
    /// Keeps the rate as far as an altitude in hundreds of feet can.
    void setFinalLength(int miles);
    /// Feet above mean sea level. Changes the rate.
    void setFafAltitude(int feet);

    int getElevation() const { return elevation_; }
    int getFinalLength() const { return finalLength_; }
    int getFafAltitude() const { return fafAltitude_; }
    int getDescentRate() const { return descentRate_; } ///< feet per nautical mile, in tens

    /// The altitude, in metres, at which a final begins that is so long at least: not below what the rate needs there.
    double fafAltitudeMetres(double leastMiles) const;

private:
    void updateDescentRate();

    int elevation_ = 0;
    int finalLength_ = 5;
    int fafAltitude_ = 1000;
    int descentRate_ = UsualRate;
};

} // namespace skyvane
